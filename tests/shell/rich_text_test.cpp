#include "shell/rich_text.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

#include "surface/failure.h"

namespace orvane {
namespace {

// The model as text: a line for each paragraph, its differences from the usual format first, each run in brackets.

std::string printed(const RichRun& run) {
  std::ostringstream out;
  const auto& format = run.format;
  out << '[' << (format.bold ? "b " : "") << (format.italic ? "i " : "") << (format.underline ? "u " : "");
  if (format.halfPoints != 24) out << "fs" << format.halfPoints << ' ';
  if (format.colour)
    out << "rgb" << +format.colour->red << ',' << +format.colour->green << ',' << +format.colour->blue << ' ';
  if (!format.font.empty()) out << format.font << ' ';
  out << '|';
  for (const char c : run.text) c == '\n' ? out << "\\n" : c == '\t' ? out << "\\t" : out << c;
  out << ']';
  return out.str();
}

std::string printed(const RichParagraph& paragraph) {
  std::ostringstream out;
  const auto& format = paragraph.format;
  constexpr const char* alignments[] = {"", "right ", "centre ", "justified "};
  out << alignments[static_cast<int>(format.alignment)];
  if (format.leftIndent) out << "li" << format.leftIndent << ' ';
  if (format.firstLineIndent) out << "fi" << format.firstLineIndent << ' ';
  if (format.spaceBefore) out << "sb" << format.spaceBefore << ' ';
  if (format.spaceAfter) out << "sa" << format.spaceAfter << ' ';
  if (!paragraph.marker.empty()) out << '<' << paragraph.marker << "> ";
  for (const auto& run : paragraph.runs) out << printed(run);
  return out.str() + "\n";
}

std::string printed(const RichTable& table) {
  std::ostringstream out;
  out << "table";
  for (const auto edge : table.edges) out << ' ' << edge;
  out << '\n';
  for (const auto& row : table.rows) {
    out << " row\n";
    for (const auto& cell : row) {
      out << "  cell\n";
      for (const auto& paragraph : cell) out << "   " << printed(paragraph);
    }
  }
  return out.str();
}

std::string printed(const RichText& text) {
  std::string all;
  for (const auto& block : text.blocks) all += std::visit([](const auto& b) { return printed(b); }, block);
  return all;
}

std::string read(const std::string& bytes) { return printed(readRichText(bytes)); }

// As read, but for the body of a file with a head that says nothing.
std::string readBody(const std::string& body) { return read("{\\rtf1\\ansi " + body + "}"); }

const std::string sample =
    "{\\rtf1\\ansi\\ansicpg1252\\deff1{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}\r\n"
    "{\\f1\\froman{\\*\\panose 02020603}Gara{\\*\\falt Times}mond;}{\\f2\\ftech Symbol;}}\r\n"
    "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue128;}\r\n"
    "{\\stylesheet{\\s1 \\b Titre;}}{\\info{\\title Aide}{\\author X}}{\\*\\generator G {inner};}\r\n"
    "\\pard\\qc\\sb240\\sa120{\\f0\\fs48\\b\\cf1 Bienvenue}\\par\r\n"
    "\\pard\\qj\\fi360 Un \\i mot\\i0  et \\ul un\\ulnone  autre, {\\cf2\\fs16 petit }fin.\\line Suite\\tab "
    "l\\'e0.\\par\r\n"
    "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2\\pnindent0{\\pntxtb\\'B7}}\\fi-200\\li200 Premier\\par\r\n"
    "{\\pntext\\f2\\'B7\\tab}Second\\par\r\n"
    "\\pard\\par\r\n"
    "\\trowd\\cellx2000\\cellx5000\\pard\\intbl A\\cell\\b B\\par C\\b0\\cell\\row\r\n"
    "\\trowd\\cellx2000\\cellx5000\\intbl D\\cell\\cell\\row\r\n"
    "\\pard\\plain\\u8364?\\u-10179?\\u-8704? fin{\\bin5 }}{x}\\par}\r\n";

const char* const samplePrinted =
    "centre sb240 sa120 [b fs48 rgb255,0,0 Arial |Bienvenue]\n"
    "justified fi360 [Garamond |Un ][i Garamond |mot][Garamond | et ][u Garamond |un][Garamond | autre, ]"
    "[fs16 rgb0,0,128 Garamond |petit ][Garamond |fin.\\nSuite\\tlà.]\n"
    "li200 fi-200 <•> [Garamond |Premier]\n"
    "li200 fi-200 <•> [Garamond |Second]\n"
    "[Garamond |]\n"
    "table 2000 5000\n"
    " row\n"
    "  cell\n   [Garamond |A]\n"
    "  cell\n   [b Garamond |B]\n   [b Garamond |C]\n"
    " row\n"
    "  cell\n   [Garamond |D]\n"
    "  cell\n   [Garamond |]\n"
    "[Garamond |€😀 fin]\n";

TEST(RichText, WholeFile) { EXPECT_EQ(read(sample), samplePrinted); }

TEST(RichText, WhatIsNoRichTextFails) {
  for (const char* bytes : {"", "Lisez-moi", "{", "{\\rt", " {\\rtf1 x}", "{\\b}"})
    EXPECT_THROW(readRichText(bytes), Failure) << bytes;
  EXPECT_EQ(read("{\\rtf"), "");
  EXPECT_EQ(read("{\\rtf1}"), "");
}

TEST(RichText, SignsAndEscapes) {
  EXPECT_EQ(readBody("a\\~b\\_c\\-d \\{\\\\\\} \\bullet\\endash\\emdash\\lquote\\rquote\\ldblquote\\rdblquote"),
            "[|a\u00A0b\u2011c\u00ADd {\\} •–—‘’“”]\n");
  EXPECT_EQ(readBody("\\'80\\'8c\\'9f\\'E9\xE9\\'c9 \\'81"), "[|€ŒŸééÉ \uFFFD]\n") << "the code page";
  EXPECT_EQ(readBody("a\\'b\\'z9\\'0ac\\"), "[|abz9c}]\n") << "broken escapes leave no trace of themselves";
  EXPECT_EQ(readBody(std::string("a\0b\x7F\r\nc\td", 9)), "[|abc\\td]\n");
  EXPECT_EQ(readBody("a\\\r\nb\\\nc"), "[|a]\n[|b]\n[|c]\n") << "an escaped line end ends a paragraph";
}

TEST(RichText, UnicodeAndItsFallback) {
  EXPECT_EQ(readBody("\\u233?t\\u233\\'e9"), "[|été]\n");
  EXPECT_EQ(readBody("\\uc2\\u8364EUx{\\uc0\\u233 t}\\u8364EUy"), "[|€xét€y]\n") << "the length belongs to the group";
  EXPECT_EQ(readBody("\\uc3\\u233 a\\b cd\\b e"), "[|éd][b |e]\n") << "a word is one character of it";
  EXPECT_EQ(readBody("\\uc3\\u233 a{b}c"), "[|ébc]\n") << "a group ends it";
  EXPECT_EQ(readBody("\\u-4064?\\u128512?\\u0?\\u10?"), "[|\uF020😀]\n");
  EXPECT_EQ(readBody("\\u-10179?a\\u-8704?b\\u-10179?\\u-10179?\\u-8704?\\u-10179?"),
            "[|\uFFFDa\uFFFDb\uFFFD😀\uFFFD]\n")
      << "halves of a pair";
  EXPECT_EQ(readBody("\\u-70000?\\u99999999999?"), "[|\uFFFD\uFFFD]\n");
}

TEST(RichText, CharactersOfAGroupEndWithIt) {
  EXPECT_EQ(readBody("a{\\b b{\\i c}d}e\\b1 f\\plain g"), "[|a][b |b][b i |c][b |d][|e][b |f][|g]\n");
  EXPECT_EQ(readBody("a{}b{\\b\\b0}c"), "[|abc]\n") << "no run without a difference";
  EXPECT_EQ(readBody("\\fs0 a\\fs-4 b\\fs99999999999 c\\fs c\\v hidden\\v0\\cf7 d\\cf-1 e\\f9 f"),
            "[|ab][fs3276 |c][|c][|d][|e][|f]\n");
  EXPECT_EQ(readBody("{\\colortbl;\\red999\\green-5;\\blue1}\\cf1 a\\cf2 b\\cf0 c"), "[rgb255,0,0 |a][|b][|c]\n");
  EXPECT_EQ(readBody("{\\fonttbl\\f0 Arial;\\f3 Times New Roman;\\f4 Last}\\f3 a\\f4 b\\f0 c"),
            "[Times New Roman |a][Last |b][Arial |c]\n");
}

TEST(RichText, ParagraphsKeepTheirFormatUntilReset) {
  EXPECT_EQ(readBody("\\qr\\li99999\\fi-99999\\sb-3 a\\par b\\par\\pard c"),
            "right li31680 fi-31680 [|a]\nright li31680 fi-31680 [|b]\n[|c]\n");
  EXPECT_EQ(readBody("a\\par\\par{\\fs40\\par}"), "[|a]\n[|]\n[fs40 |]\n")
      << "empty ones have the height of their font";
  EXPECT_EQ(read("{\\rtf1\\pard\\qc a"), "centre [|a]\n");
  EXPECT_EQ(read("{\\rtf1{{a}}\\par}}b\\par"), "[|a]\n") << "nothing is read after the end";
}

TEST(RichText, GroupsThatAreNoText) {
  EXPECT_EQ(readBody("a{\\*\\unknown b{\\b c}}{\\*\\x}{\\pict\\bin3 }}}89ab}{\\info{\\title t}}d"), "[|ad]\n");
  EXPECT_EQ(readBody("{\\field{\\*\\fldinst HYPERLINK \"u\"}{\\fldrslt lien}}{\\footnote n}."), "[|lien.]\n");
  EXPECT_EQ(readBody("{\\stylesheet\\par\\cell\\row\\trowd\\cellx9}a\\bin-3 b\\bin99999999999 c"), "[|ab]\n");
  EXPECT_EQ(readBody("{\\*}a{\\* b}"), "[|a b]\n") << "a star without a word says nothing";
}

TEST(RichText, Markers) {
  EXPECT_EQ(readBody("{\\listtext\\f3\\'a7\\tab}a\\par{\\listtext 2.\\tab}b\\par{\\listtext o\\tab}c\\par d"),
            "<•> [|a]\n<2.> [|b]\n<•> [|c]\n[|d]\n");
  EXPECT_EQ(readBody("{\\*\\pn\\pnlvlblt{\\pntxtb *}}a\\par b\\par\\pard c\\pnlvlblt"), "<•> [|a]\n<•> [|b]\n[|c]\n")
      << "an old list without marker texts";
}

TEST(RichText, TablesThatAreBroken) {
  EXPECT_EQ(readBody("\\trowd\\cellx900\\cellx100\\intbl a\\cell b\\cell c\\cell\\row"),
            "table 900 915 2355\n row\n  cell\n   [|a]\n  cell\n   [|b]\n  cell\n   [|c]\n")
      << "edges that fall or lack";
  EXPECT_EQ(readBody("a\\cell\\pard b\\par\\intbl c"),
            "table 1440\n row\n  cell\n   [|a]\n[|b]\ntable 1440\n row\n  cell\n   [|c]\n")
      << "rows without an end";
  std::string many = "\\trowd";
  for (int i = 0; i < 70; ++i) many += "\\cellx1\\cell";
  const auto text = readRichText("{\\rtf1" + many + "\\row}");
  const auto& table = std::get<RichTable>(text.blocks.at(0));
  EXPECT_EQ(table.edges.size(), 63u);
  ASSERT_EQ(table.rows.at(0).size(), 63u);
  EXPECT_EQ(table.rows.at(0).back().size(), 8u);
}

// What every text that was read must be, whatever the bytes.
void expectSound(const RichText& text) {
  const auto soundParagraph = [](const RichParagraph& paragraph) {
    EXPECT_FALSE(paragraph.runs.empty());
    for (const auto& run : paragraph.runs) {
      EXPECT_TRUE(run.format.halfPoints >= 1 && run.format.halfPoints <= 3276);
      EXPECT_EQ(run.text.find('\0'), std::string::npos);
    }
  };
  for (const auto& block : text.blocks) {
    if (const auto* paragraph = std::get_if<RichParagraph>(&block)) {
      soundParagraph(*paragraph);
      continue;
    }
    const auto& table = std::get<RichTable>(block);
    for (std::size_t i = 1; i < table.edges.size(); ++i) EXPECT_LT(table.edges[i - 1], table.edges[i]);
    for (const auto& row : table.rows) {
      EXPECT_EQ(row.size(), table.edges.size());
      for (const auto& cell : row)
        for (const auto& paragraph : cell) soundParagraph(paragraph);
    }
  }
}

TEST(RichTextDamage, CutAtEveryByte) {
  for (std::size_t size = 5; size <= sample.size(); ++size) {
    SCOPED_TRACE(size);
    expectSound(readRichText(sample.substr(0, size)));
  }
}

TEST(RichTextDamage, ChangedBytes) {
  const std::string_view telling = "{}\\;-*'u09 \n\x80\xFF";
  for (unsigned round = 0; round < 4000; ++round) {
    SCOPED_TRACE(round);
    std::mt19937 random(round);
    std::string bytes = sample;
    for (auto changes = 1 + random() % 12; changes > 0; --changes) {
      const std::size_t at = 5 + random() % (bytes.size() - 6);
      const std::size_t length = 1 + random() % 20;
      switch (random() % 4) {
        case 0:
          bytes[at] = telling[random() % telling.size()];
          break;
        case 1:
          bytes[at] = static_cast<char>(random() % 256);
          break;
        case 2:
          bytes.erase(at, length);
          break;
        default:
          bytes.insert(at, bytes.substr(5 + random() % (bytes.size() - 5), length));
          break;
      }
      if (bytes.size() < 50) break;
    }
    expectSound(readRichText(bytes));
  }
}

TEST(RichTextDamage, DepthDoesNoHarm) {
  const std::size_t deep = 1'000'000;
  EXPECT_EQ(read("{\\rtf1 a" + std::string(deep, '{') + "b"), "[|ab]\n");
  EXPECT_EQ(read("{\\rtf1 a{\\b " + std::string(deep, '{') + "b" + std::string(deep, '}') + "}c}"), "[|a][b |b][|c]\n");
}

// Each of these would take minutes if its cost grew faster than its length.
TEST(RichTextDamage, CostGrowsWithLengthOnly) {
  const auto repeated = [](const std::string& piece) {
    std::string all = "{\\rtf1{\\fonttbl{\\f0 " + std::string(300'000, 'F') + ";}}";
    for (int i = 0; i < 200'000; ++i) all += piece;
    return all;
  };
  for (const char* piece : {"x", "\\b x\\b0 y", "{\\pntext a}", "\\u-10179?", "\\cell", "\\trowd\\cellx9\\cell\\row",
                            "{\\colortbl;}", "\\par", "\\'e"}) {
    SCOPED_TRACE(piece);
    expectSound(readRichText(repeated(piece)));
  }
}

}  // namespace
}  // namespace orvane
