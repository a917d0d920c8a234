// SPDX-License-Identifier: MIT
// Classes that the script of a form may use with the user's permission.

#include <QSettings>

#include "cardwright/hosting/ClassPermissions.h"
#include "cardwright/robot/dialogs/RecordingDesktop.h"
#include "forms/FormScriptsFixture.h"

namespace cardwright {
namespace {

/// Keeps the settings in a folder of the test. Must be made before anything opens the user's settings.
class OwnSettings {
 protected:
  OwnSettings() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(m_Folder.Path().string()));
  }

 private:
  TempFolder m_Folder;
};

struct PermissionScript {
  const char* name;
  const char* twice;    ///< a click creates an object twice and shows the results
  const char* changed;  ///< the same with another text
  const char* unknown;  ///< asks for unknown classes
};

constexpr PermissionScript kPermissionScripts[] = {
    {"VBScript",
     "Sub cmdToday_OnClick()\nOn Error Resume Next\nFor i = 1 To 2\n"
     "Set f = CreateObject(\"Scripting.FileSystemObject\")\ns = s & Err.Number & \" \"\nErr.Clear\nNext\n"
     "txtDepth.Text = s & TypeName(f)\nEnd Sub\n",
     "Sub cmdToday_OnClick()\nOn Error Resume Next\nFor i = 1 To 2\n"
     "Set f = CreateObject(\"scripting.filesystemobject\")\ns = s & Err.Number & \" \"\nErr.Clear\nNext\n"
     "txtDepth.Text = s & TypeName(f) & \"!\"\nEnd Sub\n",
     "Sub cmdToday_OnClick()\nOn Error Resume Next\nFor Each c In Array(\"WScript.Shell\", \"\", "
     "\"Cardwright.Robot\")\n"
     "Set f = CreateObject(c)\ns = s & Err.Number & \" \"\nNext\nSet f = GetObject(\"/etc/passwd\")\n"
     "txtDepth.Text = s & Err.Number\nEnd Sub\n"},
    {"JScript",
     "function cmdToday_OnClick(){\nvar s = '', f;\nfor (var i = 0; i < 2; i++)\n"
     "  try { f = new ActiveXObject('Scripting.FileSystemObject'); s += '0 '; }\n"
     "  catch (e) { s += (e.number & 0xFFFF) + ' '; }\ntxtDepth.Text = s + (f ? 'FileSystemObject' : "
     "'Empty');\n}\n",
     "function cmdToday_OnClick(){\nvar s = '', f;\nfor (var i = 0; i < 2; i++)\n"
     "  try { f = new ActiveXObject('scripting.filesystemobject'); s += '0 '; }\n"
     "  catch (e) { s += (e.number & 0xFFFF) + ' '; }\ntxtDepth.Text = s + (f ? 'FileSystemObject!' : "
     "'Empty!');\n}\n",
     "function cmdToday_OnClick(){\nvar s = '', all = ['WScript.Shell', '', 'Cardwright.Robot'];\n"
     "for (var i = 0; i < 3; i++)\n  try { new ActiveXObject(all[i]); } catch (e) { s += (e.number & 0xFFFF) "
     "+ ' '; }\n"
     "try { GetObject('/etc/passwd'); } catch (e) { s += e.number & 0xFFFF; }\ntxtDepth.Text = s;\n}\n"},
};

class RestrictedClasses : private OwnSettings,
                          public FormScripts,
                          public testing::WithParamInterface<PermissionScript> {
 protected:
  RestrictedClasses() : FormScripts(GetParam().name) {
    ClassRegistry classes;
    AddCoreClasses(classes);
    ProvideFormScripts(BothLanguages(), std::move(classes));
    Module().scriptControl = Module().makeScriptControl();
  }

  /// What a click shows in a form that was just read.
  std::string DepthAfterClick(const std::string& script) {
    EXPECT_TRUE(ReadScript(script));
    ClickToday();
    return Depth().ToUtf8();
  }
  void AnswerYes() {
    boxes.beforeAnswer = [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      box->setDefaultButton(QMessageBox::Yes);
    };
  }
  QString NameOf(const char* file) const { return qt::ToQString(folder.Name(file)); }
  std::string Question(const std::string& progid, const std::string& file = "form.cwf") {
    return "Run-time tests|The script of this form wants to use the class " + progid +
           ", with which it may reach more than the form, such as your files.\r\n\r\n" +
           std::filesystem::canonical(folder.File(file)).string() +
           "\r\n\r\nAllow it, until the script is changed? Do so only if you know where the form comes "
           "from.|exclamation";
  }

  const std::string kClass = "Scripting.FileSystemObject";
  std::optional<robot::RecordingDesktop> person{std::in_place};
};

TEST_P(RestrictedClasses, AreRefusedUnlessTheUserAgrees) {
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "429 429 Empty");
  EXPECT_EQ(boxes.Take(), Lines{Question(kClass)}) << "asked once in a run of the form";
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "429 429 Empty");
  EXPECT_EQ(boxes.Take(), Lines{Question(kClass)}) << "a refusal is not kept";
}

TEST_P(RestrictedClasses, StayAllowedForTheSameScript) {
  AnswerYes();
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  EXPECT_EQ(boxes.Take(), Lines{Question(kClass)});
  boxes.beforeAnswer = nullptr;
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  person.reset();
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_P(RestrictedClasses, NeedANewPermissionAfterAChangeOfTheScript) {
  AnswerYes();
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  boxes.Take();
  boxes.beforeAnswer = nullptr;
  EXPECT_EQ(DepthAfterClick(GetParam().changed), "429 429 Empty!");
  EXPECT_EQ(boxes.Take(), Lines{Question("scripting.filesystemobject")});
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject") << "the old one is still allowed";
  EXPECT_EQ(boxes.Take(), Lines{});
}

TEST_P(RestrictedClasses, NeedANewPermissionInAnotherFile) {
  AnswerYes();
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  boxes.Take();
  boxes.beforeAnswer = nullptr;
  // The keys of the settings ignore case.
  for (const char* name : {"other.cwf", "Form.cwf"}) {
    std::filesystem::copy_file(folder.File("form.cwf"), folder.File(name));
    ASSERT_TRUE(form->ProjectRead(NameOf(name)));
    ClickToday();
    EXPECT_EQ(Depth(), u"429 429 Empty");
    EXPECT_EQ(boxes.Take(), Lines{Question(kClass, name)});
  }
  std::filesystem::create_symlink(folder.File("form.cwf"), folder.File("link.cwf"));
  ASSERT_TRUE(form->ProjectRead(NameOf("link.cwf")));
  ClickToday();
  EXPECT_EQ(Depth(), u"0 0 FileSystemObject") << "the same file by another name";
}

TEST_P(RestrictedClasses, CanBeRevokedInTheSettings) {
  AnswerYes();
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "0 0 FileSystemObject");
  boxes.Take();
  boxes.beforeAnswer = nullptr;
  const Text key = Text::FromUtf8(std::filesystem::canonical(folder.File("form.cwf")).string()) +
                   u" scripting.filesystemobject";
  SettingsStore& settings = Module().desktop->Settings();
  EXPECT_EQ(settings.Get(u"Cardwright", u"FormScripts", key, u"").Size(), 64U);
  settings.Save(u"Cardwright", u"FormScripts", key, u"");
  EXPECT_EQ(DepthAfterClick(GetParam().twice), "429 429 Empty");
  EXPECT_EQ(boxes.Take(), Lines{Question(kClass)});
}

TEST_P(RestrictedClasses, AreRefusedSilentlyWhereNobodyCanAnswer) {
  AnswerYes();
  Module().programFile = folder.Put("form.cwf", "x");
  Module().scriptControl->SetLanguage(Text::FromUtf8(GetParam().name));
  Module().scriptControl->SetAllowUI(false);
  const auto error = [](auto&& step) {
    try {
      step();
    } catch (const Error& failure) {
      return failure.Number();
    }
    return 0;
  };
  const bool isBasic = GetParam().name == std::string("VBScript");
  const Text code = isBasic ? u"Set f = CreateObject(\"Scripting.FileSystemObject\")"
                            : u"new ActiveXObject('Scripting.FileSystemObject');";
  EXPECT_EQ(error([&] { Module().scriptControl->AddCode(code); }), 429);
  Module().scriptControl->SetAllowUI(true);
  person.reset();  // the tests run without a display
  EXPECT_EQ(error([&] { Module().scriptControl->AddCode(code); }), 429);
  EXPECT_EQ(boxes.Take(), Lines{});
  person.emplace();
  EXPECT_EQ(error([&] { Module().scriptControl->AddCode(code); }), 0);
}

TEST_P(RestrictedClasses, AreTheOnlyOnesOffered) {
  AnswerYes();
  EXPECT_EQ(DepthAfterClick(GetParam().unknown), "429 429 429 429");
  EXPECT_EQ(boxes.Take(), Lines{});
}

// A script that is still running after another form has replaced its engine still belongs to the first form.
TEST_P(RestrictedClasses, AreNotInheritedByFormsThatReadAnAllowedOne) {
  AnswerYes();
  ASSERT_TRUE(ReadScript(GetParam().twice));
  std::filesystem::copy_file(folder.File("form.cwf"), folder.File("trusted.cwf"));
  ASSERT_TRUE(form->ProjectRead(NameOf("trusted.cwf")));
  ClickToday();
  EXPECT_EQ(Depth(), u"0 0 FileSystemObject");
  boxes.Take();
  boxes.beforeAnswer = nullptr;
  QWidget elsewhere;
  qt::FormInput trusted(&elsewhere);
  const bool isBasic = GetParam().name == std::string("VBScript");
  host->onLine = [&](const std::string& line) {
    if (line == "X READ") trusted.ProjectRead(NameOf("trusted.cwf"));
  };
  EXPECT_EQ(DepthAfterClick(isBasic ? "Sub cmdToday_OnClick()\nOn Error Resume Next\nORVExecute \"READ\"\n"
                                      "Set f = CreateObject(\"Scripting.FileSystemObject\")\n"
                                      "txtDepth.Text = Err.Number\nEnd Sub\n"
                                    : "function cmdToday_OnClick(){\nORVExecute('READ');\n"
                                      "try { new ActiveXObject('Scripting.FileSystemObject'); }\n"
                                      "catch (e) { txtDepth.Text = e.number & 0xFFFF; }\n}\n"),
            "429");
  host->onLine = nullptr;
  EXPECT_EQ(boxes.Take(), Lines{Question(kClass)});
}

INSTANTIATE_TEST_SUITE_P(, RestrictedClasses, testing::ValuesIn(kPermissionScripts),
                         [](const auto& one) { return one.param.name; });

}  // namespace
}  // namespace cardwright
