#include "session/session.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "player/script_parser.h"
#include "session/data_marks.h"
#include "session/past_text.h"
#include "session/session_file.h"
#include "session/shortening.h"
#include "sheet/frmFeuille.h"
#include "shell/frmMain.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {
namespace {

TEST(Journals, PutWhatAnActNeedsAheadOfIt) {
  std::string lines;
  Journal journal([&](const std::string& act) { lines += act; });
  EXPECT_EQ(journal.timeOf(5), 5);
  journal.begin("click outer");
  journal.answered(BoxStyle::OkCancel, Answer::OK);
  EXPECT_EQ(journal.timeOf(0.1F), 0.1F);
  EXPECT_EQ(journal.timeOf(7), 0.1F);
  journal.write();  // it opens a dialog
  EXPECT_EQ(lines, "clock 0.1\nclick outer\n");
  lines.clear();
  journal.begin("click inner");
  journal.answered(BoxStyle::OkCancel, Answer::OK);
  journal.answered(BoxStyle::YesNo, Answer::No);
  journal.answered(BoxStyle::YesNo, Answer::Yes);
  EXPECT_EQ(lines, "");
  journal.begin("click refused");
  EXPECT_EQ(lines, "answer OK No\nclick inner\n");
  journal.leaveOut();
  journal.write();
  EXPECT_EQ(lines, "answer OK No\nclick inner\n");
  lines.clear();
  journal.begin("window 2\nclick save");
  journal.setFailed(true);
  journal.write();
  EXPECT_EQ(lines, "window 2\n# échoué : click save\n");
}

class Sessions : public ::testing::Test, protected TestWorld<> {
 protected:
  Sessions() { files = filesOf(sourceFolder() / "tests/scripts/small_game"); }

  std::string lines;
  Session session{world(), [this](const std::string& act) { lines += act; }};

  void playPast(const std::string& text) {
    session.run().Main();
    const Script past = parseScript("past", text);
    session.playPast(past);
  }
  Form& active() { return *session.run().desktop().activeChild(); }
};

std::string sourceText(const char* path) { return bytesOf(sourceFolder() / path); }

const std::string inDialog =
    "click mnuFileNewPJ\ntype txtPerso \"Luc\"\npick SSTabPerso \"Contacts\"\nclick cmdContactNew\n"
    "type txtContactName \"Mado\"\n";

TEST_F(Sessions, GoOnInTheDialogThatWasOpen) {
  dialogs.modal = [this](Form& dialog) {
    EXPECT_EQ(shownValue(*dialog.find("txtContactName", {})->property("Text")), "\"Mado\"");
    session.user().type(*dialog.find("txtContactDescro", {}), "Tient le café");
    EXPECT_EQ(lines, "type txtContactDescro \"Tient le café\"\n") << "nothing waits while the dialog does";
    session.user().click(*dialog.find("OKButton", {}));
  };
  playPast(inDialog);
  EXPECT_EQ(lines, "type txtContactDescro \"Tient le café\"\nclick OKButton\n");
  EXPECT_EQ(shownValue(*active().find("lstContact", {})->property("ListCount")), "1");
}

TEST_F(Sessions, EndInFrontOfWhatCannotBeDone) {
  const std::string text = "# head\n" + inDialog + "close\nanswer Cancel\nclock 3\nclick cmdNothing\nclick cmdClose\n";
  const Script past = parseScript("past", text);
  std::string kept;
  session.refused = [&](const Act& act, const std::string&) {
    EXPECT_EQ(act.line, 10);
    const auto place = static_cast<std::size_t>(act.line) - 1;
    kept = textBefore(text, past, past.acts[place - 1]);
  };
  session.run().Main();
  session.playPast(past);
  EXPECT_EQ(kept, "# head\n" + inDialog + "close\n");
  EXPECT_EQ(active().title(), "Définition Luc") << "what comes behind is not played";
  const std::string dangling = inDialog + "clock 3\nanswer No\n";
  EXPECT_EQ(wholeActs(dangling, parseScript("past", dangling)), inDialog);
}

TEST_F(Sessions, WriteNeitherRefusalsNorFailedSavesNorTheEnd) {
  playPast("click mnuFileNewPJ\ntype txtPerso \"Luc\"\nclick cmdPrintPreview\n");
  auto& sheet = dynamic_cast<frmFeuille&>(active());
  files.broken = {"./Perso"};
  session.user().click(sheet.cmdSave(0));
  files.broken.clear();
  EXPECT_THROW(session.user().scroll(sheet.pctRecto, 3), Refusal);
  EXPECT_EQ(lines, "# échoué : click cmdSave(0)\n");
  session.user().activate(*session.run().desktop().Forms()[1]);
  session.user().focus(sheet.cmdSave(0));
  EXPECT_EQ(lines, "# échoué : click cmdSave(0)\nwindow \"Définition Luc\"\nwindow \"Luc\"\nfocus cmdSave(0)\n");
  session.user().close(*session.run().mainWindow());
  EXPECT_EQ(lines.substr(lines.size() - 8), "Save(0)\n");
}

TEST_F(Sessions, KnowTheDataTheyWereMadeWith) {
  const std::string text = "# head\n" + dataMarks(files) + "click mnuFileNewPJ\n";
  EXPECT_EQ(changedData(text, files), (std::vector<std::string>{}));
  EXPECT_TRUE(hasDataMarks(text));
  EXPECT_FALSE(hasDataMarks("# head\nclick mnuFileNewPJ\n"));
  files.contents["skill.txt"] += "x";
  files.contents.erase("grade.txt");
  EXPECT_EQ(changedData(text, files), (std::vector<std::string>{"grade.txt", "skill.txt"}));
  EXPECT_EQ(withDataMarks(text, files), "# head\n" + dataMarks(files) + "click mnuFileNewPJ\n");
}

// Typed over, undone, looked at only: none of it is needed. What draws and what is saved is, and what a person wrote.
TEST_F(Sessions, AreShortenedToWhatTheirResultNeeds) {
  const std::string text = sourceText("tests/session/long.script");
  const Shortened shorter = shortened(text, files, pictures, [](std::size_t, std::size_t) { return true; });
  EXPECT_EQ(shorter.text, sourceText("tests/session/short.script"));
  EXPECT_EQ(shorter.acts, 21U);
  EXPECT_TRUE(files.directories.empty());
  EXPECT_THROW(shortened(text + "click cmdNothing\n", files, pictures, {}), Failure);
}

std::string whyNotOpened(const std::string& path) {
  try {
    const SessionFile other(path);
    return "opened";
  } catch (const Failure& failure) {
    return failure.what();
  }
}

TEST(SessionFiles, BelongToOneProgramAndKeepWholeLines) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "/soirée.session";
  {
    SessionFile file(path);
    file.append("one\n");
    EXPECT_EQ(whyNotOpened(path), "La session ne s'ouvre pas : " + path + " (un autre programme la continue).");
    file.append("two\nthr");
  }
  const std::string link = folder.path() + "/lien";
  std::filesystem::create_symlink(path, link);
  SessionFile file(link);
  EXPECT_EQ(file.text() + "|" + file.torn(), "one\ntwo\n|thr");
  file.cut("one\n");
  EXPECT_EQ(bytesOf(path), "one\n");
  EXPECT_EQ(file.restart("new\n"), link + ".avant-1");
  file.append("three\n");
  EXPECT_EQ(bytesOf(path), "new\nthree\n");
  EXPECT_EQ(bytesOf(link + ".avant-1"), "one\n");
  EXPECT_NE(whyNotOpened(path).find("un autre programme"), std::string::npos);
  EXPECT_NE(whyNotOpened(folder.path()), "opened");
}

// What is told of a torn line, and what the file is then; or what is wrong with it.
std::string takenPast(const std::string& bytes) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "/session";
  SessionFile(path).append(bytes);
  std::string told;
  try {
    SessionFile file(path);
    takePast(file, [&](const std::string& torn) { told = torn + "|"; });
  } catch (const ScriptError& error) {
    told = error.message.substr(folder.path().size() + 1) + "|";
  }
  return told + bytesOf(path);
}

TEST(SessionFiles, AreNeverCutWhereTheyAreNoSessions) {
  EXPECT_EQ(takenPast("# head\nclick a\nclock 3\nclick"), "click|# head\nclick a\n");
  EXPECT_EQ(takenPast("# head\nclick a\nanswer No\n"), "# head\nclick a\n");
  EXPECT_EQ(takenPast("# Session"), "# Session|");
  EXPECT_EQ(takenPast("BM\x80\nbits"), "session:1: la ligne n'est pas en UTF-8|BM\x80\nbits");
  EXPECT_EQ(takenPast("Chère Anne, bien à toi"), "session:1: acte inconnu « Chère »|Chère Anne, bien à toi");
}

TEST(SessionFiles, MakeUpForLinesThatFoundNoRoom) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "/session";
  SessionFile file(path);
  file.append("one\n");
  rlimit former{};
  ::getrlimit(RLIMIT_FSIZE, &former);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit narrow = former;
  narrow.rlim_cur = 6;
  ::setrlimit(RLIMIT_FSIZE, &narrow);
  EXPECT_THROW(file.append("two\n"), Failure);
  EXPECT_EQ(bytesOf(path), "one\n");
  ::setrlimit(RLIMIT_FSIZE, &former);
  file.append("three\n");
  EXPECT_EQ(bytesOf(path), "one\ntwo\nthree\n");
}

}  // namespace
}  // namespace orvane::test
