#include "shell/rtf_reader.h"

#include <gtest/gtest.h>

#include "surface/failure.h"

namespace orvane {
namespace {

// Without the frame of the page, and without what paragraphs have that ask for nothing.
std::string read(const std::string& bytes) {
  std::string html = RtfReader::html(bytes);
  for (const std::string usual :
       {"<body style=\"font-size:12pt;white-space:pre-wrap\">", "</body>", " align=\"left\"",
        "margin:0px 0px 0px 0px;text-indent:0px", " style=\"\"", " border=\"1\" cellspacing=\"0\" cellpadding=\"2\""})
    for (auto at = html.find(usual); at != html.npos; at = html.find(usual, at)) html.erase(at, usual.size());
  return html;
}

// The same of the body of a file with a head that says nothing.
std::string readBody(const std::string& body) { return read("{\\rtf1\\ansi " + body + "}"); }

const std::string sample =
    "{\\rtf1\\ansi\\ansicpg1252\\deff1{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f2\\ftech Symbol;}}\r\n"
    "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue128;}\r\n"
    "{\\stylesheet{\\s1 \\b Titre;}}{\\info{\\title Aide}{\\author X}}{\\*\\generator G {inner};}\r\n"
    "\\pard\\qc\\sb240\\sa120{\\f0\\fs47\\b\\cf1 Bienvenue}\\par\r\n"
    "\\pard\\qj\\fi360 Un \\i mot\\i0  et \\ul un\\ulnone  autre, {\\cf2\\fs16 petit }fin.\\line Suite\\tab "
    "l\\'e0.\\par\r\n"
    "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2\\pnindent0{\\pntxtb\\'B7}}\\fi-200\\li200 Premier\\par\r\n"
    "\\pard\\par\r\n"
    "\\trowd\\cellx2000\\cellx5000\\pard\\intbl A\\cell\\b B\\par C\\b0\\cell\\row\r\n"
    "\\trowd\\cellx2000\\cellx5000\\intbl D\\cell\\cell\\row\r\n"
    "\\trowd\\cellx900\\plain E\\cell\\row\r\n"
    "\\pard\\plain\\u8364?\\u-10179?\\u-8704? <&\">{\\bin5 }}{x}\\par}\r\n";

const char* const sampleHtml =
    "<p align=\"center\" style=\"color:#FF0000;font-family:'Arial';font-size:23.5pt;font-weight:700;"
    "margin:16px 0px 8px 0px;text-indent:0px\">Bienvenue</p>"
    "<p align=\"justify\" style=\"margin:0px 0px 0px 0px;text-indent:24px\">Un "
    "<span style=\"font-style:italic;\">mot</span> et <span style=\"text-decoration:underline;\">un</span> autre, "
    "<span style=\"color:#000080;font-size:8pt;\">petit </span>fin.<br>Suite\tlà.</p>"
    "<p style=\"margin:0px 0px 0px 13px;text-indent:-13px\">•\tPremier</p>"
    "<p>\u00A0</p>"
    "<table><tr><td width=\"133\"><p>A</p></td><td width=\"200\"><p style=\"font-weight:700;\">B</p>"
    "<p style=\"font-weight:700;\">C</p></td></tr>"
    "<tr><td width=\"133\"><p>D</p></td><td width=\"200\"><p>\u00A0</p></td></tr></table>"
    "<table><tr><td width=\"60\"><p>E</p></td></tr></table>"
    "<p>€😀 &lt;&amp;&quot;></p>";

TEST(RtfReader, WholeFile) {
  EXPECT_EQ(read(sample), sampleHtml);
  for (const char* bytes : {"", "Lisez-moi", "{", "{\\rt", " {\\rtf1 x}", "{\\b}"})
    EXPECT_THROW(RtfReader::html(bytes), Failure) << bytes;
}

TEST(RtfReader, MarkupByMarkup) {
  struct Case {
    std::string markup;
    std::string html;
  };
  const std::string bold = "<span style=\"font-weight:700;\">";
  const auto td = [](int width, const std::string& text) {
    return "<td width=\"" + std::to_string(width) + "\"><p>" + text + "</p></td>";
  };
  const Case cases[] = {
      // Signs and escapes
      {"a\\~b\\_c\\-d \\{\\\\\\} \\bullet\\endash\\emdash\\lquote\\rquote\\ldblquote\\rdblquote",
       "<p>a\u00A0b\u2011c\u00ADd {\\} •–—‘’“”</p>"},
      {"\\'80\\'8c\\'9f\\'E9\xE9\\'c9 \\'81", "<p>€ŒŸééÉ \uFFFD</p>"},
      {"a\\'b\\'z9\\'0ac\\", "<p>abz9c}</p>"},  // broken escapes leave no trace of themselves
      {std::string("a\0b\x7F\r\nc\td", 9), "<p>abc\td</p>"},
      {"a\\\r\nb\\\nc", "<p>a</p><p>b</p><p>c</p>"},
      // Unicode and its fallback, which may hold words and ends with its group
      {"\\u233?t\\u233\\'e9", "<p>été</p>"},
      {"\\uc2\\u8364EUx{\\uc0\\u233 t}\\u8364EUy", "<p>€xét€y</p>"},
      {"\\uc3\\u233 a\\b cd\\b e", "<p>éd" + bold + "e</span></p>"},
      {"\\uc3\\u233 a{b}c", "<p>ébc</p>"},
      {"\\u-4064?\\u128512?\\u0?\\u10?", "<p>\uF020😀</p>"},
      {"\\u-10179?a\\u-8704?b\\u-10179?\\u-10179?\\u-8704?\\u-10179?", "<p>\uFFFDa\uFFFDb\uFFFD😀\uFFFD</p>"},
      {"\\u-10179?\\u-8192?\\u-9216?\\u-9216?", "<p>\uFFFD\uE000\uFFFD\uFFFD</p>"},
      {"\\u-70000?\\u99999999999?", "<p>\uFFFD\uFFFD</p>"},
      // Characters
      {"a{\\b b{\\v c}}{}{\\b\\b0}d\\b1 e\\plain f", "<p>a" + bold + "b</span>d" + bold + "e</span>f</p>"},
      {"\\fs0 a\\fs-4 b\\cf7 c\\cf-1 d\\f9 e", "<p>abcde</p>"},
      {"\\cf1 a{\\colortbl;\\red255;}b", "<p>a<span style=\"color:#FF0000;\">b</span></p>"},
      {"\\fs1 a", "<p style=\"font-size:0.5pt;\">a</p>"},
      {"\\fs99999999999 a", "<p style=\"font-size:1638pt;\">a</p>"},
      {"{\\colortbl;\\red999\\green-5;\\blue0;}\\cf1 a\\par\\cf2 b", "<p style=\"color:#FF0000;\">a</p><p>b</p>"},
      {"\\deff4{\\fonttbl{\\f0 A<\"'{\\*\\falt T}B;}{\\f4 Last}}\\b\\plain a\\par\\f0 b",
       "<p style=\"font-family:'Last';\">a</p><p style=\"font-family:'AB';\">b</p>"},
      // Paragraphs
      {"\\qr\\li99999\\fi-99999\\sb-3 a\\par\\pard b",
       "<p align=\"right\" style=\"margin:0px 0px 0px 2112px;text-indent:-2112px\">a</p><p>b</p>"},
      {"{a}\\par}}b\\par", "<p>a</p>"},  // nothing is read after the end
      {"{\\fs40\\par}", "<p style=\"font-size:20pt;\">\u00A0</p>"},
      {"{\\listtext\\f3\\'a7\\tab}a", "<p style=\"margin:0px 0px 0px 24px;text-indent:-24px\">•\ta</p>"},
      {"{\\listtext 0\\tab}a", "<p style=\"margin:0px 0px 0px 24px;text-indent:-24px\">0\ta</p>"},
      {"{\\listtext 2.\\tab}\\li360\\fi-360 a", "<p style=\"margin:0px 0px 0px 24px;text-indent:-24px\">2.\ta</p>"},
      {"{\\*\\pn\\pnlvlblt{\\pntxtb *}}\\fi-15 a\\par\\pard b\\pnlvlblt",
       "<p style=\"margin:0px 0px 0px 0px;text-indent:-1px\">•\ta</p><p>b</p>"},
      // Groups that are no text
      {"a{\\*\\unknown b{\\b c}}{\\*\\x}{\\pict\\bin3 }}}89ab}{\\info{\\title t}}d{\\*}e{\\* f}", "<p>ade f</p>"},
      {"{\\field{\\*\\fldinst HYPERLINK \"u\"}{\\fldrslt lien}}{\\footnote n}.", "<p>lien.</p>"},
      {"{\\stylesheet\\par\\cell\\row\\trowd\\cellx9}a\\bin-3 b\\bin99999999999 c", "<p>ab</p>"},
      // Tables whose edges fall or lack, or whose rows have no end
      {"\\trowd\\cellx900\\cellx100\\intbl a\\cell b\\cell c\\cell\\row",
       "<table><tr>" + td(60, "a") + td(1, "b") + td(96, "c") + "</tr></table>"},
      {"a\\cell\\pard b\\par\\intbl c",
       "<table><tr>" + td(96, "a") + "</tr></table><p>b</p><table><tr>" + td(96, "c") + "</tr></table>"},
  };
  for (const auto& [markup, html] : cases) EXPECT_EQ(readBody(markup), html) << markup;
}

std::size_t count(std::string_view text, std::string_view part) {
  std::size_t found = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++found;
  return found;
}

// What all HTML must be, whatever the bytes.
void expectSound(const std::string& html) {
  for (const std::string element : {"p", "span", "table", "tr", "td"})
    EXPECT_EQ(count(html, "<" + element + " ") + count(html, "<" + element + ">"), count(html, "</" + element + ">"));
}

TEST(RtfReader, DamageIsReadOver) {
  for (std::size_t size = 5; size <= sample.size(); ++size) {
    SCOPED_TRACE("cut at " + std::to_string(size));
    expectSound(RtfReader::html(sample.substr(0, size)));
  }
  const std::size_t deep = 1'000'000;
  EXPECT_EQ(read("{\\rtf1 a{\\b " + std::string(deep, '{') + "b" + std::string(deep, '}') + "}c}"),
            read("{\\rtf1 a{\\b b}c}"));
}

// Each would take minutes if its cost grew faster than its length. Where the window could not keep up, reading ends.
TEST(RtfReader, LimitsAndSpeed) {
  const auto failure = [](const std::string& piece, std::size_t repeats) -> std::string {
    std::string bytes = "{\\rtf1{\\fonttbl{\\f0 " + std::string(100'000, 'F') + ";}}";
    for (std::size_t i = 0; i < repeats; ++i) bytes += piece;
    try {
      expectSound(RtfReader::html(bytes));
    } catch (const Failure& caught) {
      return caught.what();
    }
    return "";
  };
  const std::pair<const char*, std::size_t> mostOfEach[] = {
      {"x", 50'000}, {"\\b x\\b0 y", 5'000}, {"x\\par ", 50'000}, {"\\trowd\\cellx9\\cell\\row", 25'000}};
  for (const auto& [piece, most] : mostOfEach) {
    EXPECT_EQ(failure(piece, most), "") << piece;
    EXPECT_NE(failure(piece, most + 1), "") << piece;
  }
  for (const char* piece : {"{\\colortbl;}", "\\cellx9", "\\'e\\par"}) failure(piece, 200'000);
  EXPECT_EQ(failure("{\\pntext a}", 200'000), "Un paragraphe dépasse 50 Ko ou 10 000 changements de style.");
  EXPECT_EQ(failure("x\\line ", 50'000), "Il a plus de 50 000 lignes, cellules et changements de style.");
  EXPECT_EQ(failure("{}", 5'000'000), "Il dépasse 10 Mo.");
}

}  // namespace
}  // namespace orvane
