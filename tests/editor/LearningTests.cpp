// SPDX-License-Identifier: MIT
// Declared names that the word lists take in.

#include "editor/EditorTest.h"

namespace cardwright {
namespace {

class LearningTest : public EditorTest {
 protected:
  Text Learned() const {
    const Text all = pad->Language().constants;
    const std::u16string_view mark = u"vbArray ";
    return all.View().substr(all.View().find(mark) + mark.size());
  }
  Text LearnedFrom(std::u16string_view script, std::u16string_view language = u"VBScript") {
    SetScript(script, language);
    return Learned();
  }
};

TEST_F(LearningTest, OneNameOfEachDeclaration) {
  EXPECT_EQ(LearnedFrom(u"Dim alpha"), u"alpha");
  EXPECT_EQ(LearnedFrom(u"Const beta = 1"), u"beta");
  EXPECT_EQ(LearnedFrom(u"Sub Gamma(x)"), u"Gamma");
  EXPECT_EQ(LearnedFrom(u"Function Delta"), u"Delta");
  EXPECT_EQ(LearnedFrom(u"Dim alpha, beta"), u"alpha") << "the search goes on behind the name";
}

TEST_F(LearningTest, NamesJoinWithoutABlank) {
  EXPECT_EQ(LearnedFrom(u"Dim alpha\r\nDim beta"), u"alphabeta");
  EXPECT_EQ(LearnedFrom(u"Dim alpha: Dim beta"), u"alphabeta");
}

TEST_F(LearningTest, WhatCountsAsADeclaration) {
  EXPECT_EQ(LearnedFrom(u"' Dim alpha"), u"alpha") << "the search knows no remarks";
  EXPECT_EQ(LearnedFrom(u"\tDim alpha"), u"alpha");
  EXPECT_EQ(LearnedFrom(u"xDim alpha"), u"");
  EXPECT_EQ(LearnedFrom(u"Dim\talpha"), u"");
  EXPECT_EQ(LearnedFrom(u"Dim 1 + _x"), u"_x") << "what is no letter is skipped";
  EXPECT_EQ(LearnedFrom(u"Dim 12"), u"");
  EXPECT_EQ(LearnedFrom(u"Dim"), u"");
}

TEST_F(LearningTest, KeywordsAreNotTheName) {
  EXPECT_EQ(LearnedFrom(u"Dim Preserve x"), u"x");
  EXPECT_EQ(LearnedFrom(u"Dim Preserve"), u"");
}

TEST_F(LearningTest, KnownConstantTakesTheSpellingOfTheDeclaration) {
  EXPECT_EQ(LearnedFrom(u"Dim LEFT"), u"");
  const std::u16string_view list = pad->Language().constants;
  EXPECT_NE(list.find(u" LEFT "), list.npos);
  EXPECT_NE(list.find(u" LeftB "), list.npos) << "other words keep theirs";
}

TEST_F(LearningTest, UsesTakeTheSpellingOfTheDeclaration) {
  SetScript(u"COUNTER = counter + 1 ' COUNTER\r\ns = \"COUNTER\"\r\n");
  pad->SetSelStart(pad->TextLength());
  Type("Dim Counter\n");
  EXPECT_EQ(pad->Contents(), u"Counter = Counter + 1 ' COUNTER\r\ns = \"COUNTER\"\r\nDim Counter\r\n");
  EXPECT_EQ(pad->CurrentLine(), 4);
  EXPECT_EQ(Learned(), u"Counter");
}

TEST_F(LearningTest, NothingIsLearnedInJscript) {
  const Text before = (SetScript(u"", u"JScript"), pad->Language().constants);
  SetScript(u"function alpha() {}\r\nDim beta", u"JScript");
  EXPECT_EQ(pad->Language().constants, before);
}

}  // namespace
}  // namespace cardwright
