// SPDX-License-Identifier: MIT
#include "cardwright/shared/Messages.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"

namespace cardwright {
namespace {

TEST(MessageTable, HoldsEveryNumberOnceInOrder) {
  std::vector<int> expected;
  for (int id = 98; id <= 104; ++id) expected.push_back(id);
  for (int id = 1000; id <= 1002; ++id) expected.push_back(id);
  for (int id = 1005; id <= 1084; ++id) expected.push_back(id);
  std::vector<int> ids;
  for (const Message& message : MessageTable()) {
    ids.push_back(message.id);
    EXPECT_FALSE(message.text.empty()) << message.id;
  }
  EXPECT_EQ(ids, expected);
}

TEST(GetMessage, GivesTheTextOfANumber) {
  const struct {
    int id;
    const char16_t* text;
  } rows[] = {
      {100, u"WARNING!"},
      {1000, u"Set the display text in the control."},
      {1025, u"Cut"},
      {1035, u"Unable to execute program:\r\nSub or function Main missing !!!"},
      {1051, u"Ok"},
      {1055,
       u"Set the files selection filter. The format must be "
       u"<Description1>|<extension1>;<extension2>;...<extensionN>|<Description2>|...|<DescriptionN>. e.g. "
       u"\"OV Tarvo "
       u"Project/Theme (*.ovp;*.tem)|*.ovp;*.tem|All files (*.*)|*.*\""},
      {1064,
       u"The available parameters are: %c% (Color as OLE_COLOR), %r% (Red component), %g% (Green component), "
       u"%b% "
       u"(Blue component)."},
      {1072, u"Invalid OV Tarvo connection !\r\nUnable to execute the Script"},
      {1078,
       u"All image files (*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg)|*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg|Windows "
       u"Metafile "
       u"(*.wmf;*.emf)|*.wmf;*.emf|Bitmap Windows/OS2 (*.bmp)|*.bmp|Icona (*.ico)|*.ico|CompuServe Graphic "
       u"Interchange image (*.gif)|*.gif|JPEG (*.jpg)|*.jpg"},
      {1084, u"DATA STORAGE END"},
  };
  for (const auto& row : rows) EXPECT_EQ(GetMessage(row.id), row.text) << row.id;
}

TEST(GetMessage, PutsArgumentsInTheirPlaces) {
  EXPECT_EQ(GetMessage(98, {11, u"Division by zero", 5, 0}),
            u"Error N. 11 - Division by zero \r\n(Line: 5    Column:0)");
  EXPECT_EQ(GetMessage(1037, {u"abc"}), u"No results found for \"abc\"");
  EXPECT_EQ(GetMessage(1082, {GetMessage(1083)}), u"INTERNAL PROCEDURE: DATA STORAGE START");
}

TEST(GetMessage, LeavesPlacesWithoutAnArgument) {
  EXPECT_EQ(GetMessage(99), u"Error N. %%1 - %%2");
  EXPECT_EQ(GetMessage(99, {7}), u"Error N. 7 - %%2");
  EXPECT_EQ(GetMessage(100, {u"unused"}), u"WARNING!");
}

TEST(GetMessage, FillsAPlaceThatAnArgumentBringsIn) {
  EXPECT_EQ(GetMessage(99, {u"<%%2>", u"x"}), u"Error N. <x> - x");
  EXPECT_EQ(GetMessage(99, {u"x", u"<%%1>"}), u"Error N. x - <%%1>");
}

TEST(GetMessage, FailsForAnUnknownNumber) {
  for (const int id : {0, -1, 97, 105, 1003, 1085, 99999}) {
    EXPECT_EQ(ErrorOf([&] { GetMessage(id); }), 326) << id;
  }
  try {
    GetMessage(105, {1});
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Description(), u"Resource with identifier '105' not found");
  }
}

TEST(ExpandLineBreaks, TurnsEachPairIntoALineEnd) {
  EXPECT_EQ(ExpandLineBreaks(u"a##b###c#"), u"a\r\nb\r\n#c#");
  EXPECT_EQ(ExpandLineBreaks(u""), u"");
}

}  // namespace
}  // namespace cardwright
