#include "player/script_parser.h"

#include <gtest/gtest.h>

#include "player/act_kinds.h"

namespace orvane::test {
namespace {

std::string fault(const std::string& text) {
  try {
    parseScript("x.script", text);
  } catch (const ScriptError& error) {
    return error.message;
  }
  return {};
}

TEST(ScriptParser, SkipsBlankLinesCommentsAndByteOrderMarkAndCountsLines) {
  const Script script =
      parseScript("x", "\xEF\xBB\xBF# début \"\r\n\n \t\n  click  txtCaract(3)\t\r\ntype a \"Éloïse\"\r\nclose\r");
  ASSERT_EQ(script.acts.size(), 3U);
  EXPECT_EQ(script.acts[0].line, 4);
  EXPECT_EQ(script.acts[0].kind->name, "click");
  EXPECT_EQ(script.acts[0].target.name, "txtCaract");
  EXPECT_EQ(script.acts[0].target.index, 3);
  EXPECT_EQ(script.acts[1].text, "Éloïse");
  EXPECT_EQ(script.acts[2].line, 6);
}

// The scripts that are played write the other forms.
TEST(ScriptParser, ReadsOperands) {
  const Script script = parseScript("x",
                                    R"(type t "a\"b\\c\n\r\t #d"
pick t "0"
row t -1
scroll t -12
expect a.b "C0\tFFFF"
window "")");
  const auto& acts = script.acts;
  ASSERT_EQ(acts.size(), 6U);
  EXPECT_EQ(acts[0].text, "a\"b\\c\n\r\t #d");
  EXPECT_EQ(acts[1].entry, Entry("0"));
  EXPECT_EQ(acts[2].entry, Entry(-1));
  EXPECT_EQ(acts[3].number, -12);
  EXPECT_EQ(acts[4].value, R"("C0\tFFFF")");
  EXPECT_EQ(acts[5].entry, Entry(""));
}

TEST(ScriptParser, TellsWhereAndWhatIsWrong) {
  EXPECT_EQ(fault("close\n\njump txtAge\n"), "x.script:3: acte inconnu « jump »");
  EXPECT_EQ(fault("click"), "x.script:1: « click » s'écrit : click <contrôle>");
  EXPECT_EQ(fault("type txtAge 31"), "x.script:1: texte entre guillemets attendu, et non « 31 »");
  EXPECT_EQ(fault("# fin\r\ntype txtAge \"31"), "x.script:2: texte sans guillemet fermant");
}

TEST(ScriptParser, RejectsEveryWrongForm) {
  const std::vector<std::string> wrong = {
      // the wrong number of words
      "click a b", "type a", "type a \"b\" \"c\"", "close a", "answer", "edit a 1", "state x", "expect a.b", "get",
      // words that are cut wrongly
      "type a \"b\"c", "type a b\"c\"", "type a \"b\\", "type a \"b\\x\"", "\"close\"", "Close",
      // targets
      "click \"a\"", "click 3", "click a(", "click a()", "click a(x)", "click a(-1)", "click a(1)b", "click é",
      "click a.b", "click (3)",
      // properties
      "get a", "get a.", "get .b", "get a.b.c", "get \"a.b\"", "get a.b(", "get a.3",
      // numbers
      "scroll a 1.5", "scroll a \"1\"", "scroll a +1", "scroll a 1x", "pick a 1.0", "pick a x", "clock -1", "clock x",
      "clock inf", "clock nan", "clock 1e30", "clock \"1\"",
      // buttons and values
      "answer ok", "answer OK Retry", "answer \"OK\"", "expect a.b hello", "expect a.b true", "expect a.b c0ffff",
      "expect a.b inf",
      // bytes that are no UTF-8, in a comment too
      "type a \"\xE9\"", "# \xC3", "\xEF\xBB\xBF\xEF\xBB"};
  for (const auto& line : wrong) EXPECT_TRUE(fault(line).starts_with("x.script:1: ")) << line << " -> " << fault(line);
}

}  // namespace
}  // namespace orvane::test
