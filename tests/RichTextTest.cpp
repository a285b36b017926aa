#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "richtext/Limits.h"
#include "richtext/Reader.h"
#include "tests/support/DocumentDump.h"
#include "tests/support/DocumentFaults.h"

namespace Parlino::RichText {
namespace {

namespace fs = std::filesystem;

const fs::path TestFolder = fs::path(PARLINO_SOURCE_FOLDER) / "tests";

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> ListFiles(const fs::path& folder, std::string_view extension) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder))
    if (entry.path().extension() == extension) files.push_back(entry.path());
  return files;
}

Document ReadSoundly(std::string_view source) {
  Document document = ReadDocument(source);
  EXPECT_EQ(FindFault(document, source.size()), "") << source.substr(0, 2'000);
  return document;
}

std::string Repeat(std::string_view part, std::size_t times) {
  std::string repeated;
  repeated.reserve(part.size() * times);
  while (times-- > 0) repeated += part;
  return repeated;
}

struct ReadingCase {
  std::string_view inside;  // of the outermost group
  std::string_view dump;    // without the line end behind it
};

void ExpectReadings(std::initializer_list<ReadingCase> cases) {
  for (const ReadingCase& example : cases) {
    const std::string source = "{\\rtf1" + std::string(example.inside) + "}";
    std::string dump = DumpDocument(ReadSoundly(source));
    if (dump.ends_with('\n')) dump.pop_back();
    EXPECT_EQ(dump, example.dump) << source;
  }
}

TEST(RichText, ReadsHowTextLooks) {
  ExpectReadings({
      {" a{\\b b\\i c}d", "a<b|b><b i|c>d"},
      {"\\b a\\b0 b\\i1 c\\plain d\\ul e\\ulnone f\\uldb g\\ul0 h", "<b|a>b<i|c>d<u|e>f<u|g>h"},
      {"\\fs20 a\\fs b\\fs0 c\\fs99999 d", "<20|a>b<2|c><800|d>"},
      {"{\\b\\b0 a}{\\i{}}b\r\nc", "abc"},
      {"a{\\v hidden\\par}b\\v0 c\\v d\\plain e", "abce"},
      {"{\\colortbl;\\red255\\green9\\blue0;\\blue999;}\\cf1 a\\cf2 b\\cf0 c\\cf3 d\\cf-1 e",
       "<#ff0900|a><#0000ff|b>cde"},
      {"\\deff1{\\fonttbl{\\f0 One{\\*\\falt Other};}{\\f1\\fcharset0 Two Words;}}a\\f0 b\\plain c",
       "<Two Words|a><One|b><Two Words|c>"},
      {"\\deff5{\\fonttbl\\f5 Plain;\\f7 B\\'e4r;}a\\f7 b\\f9 c", "<Plain|a><B\u00E4r|b>c"},
  });
}

TEST(RichText, ReadsCharacters) {
  ExpectReadings({
      {" \\{\\}\\\\ a\\~b\\_c\\-d", "{}\\ a\u00A0b\u2011c\u00ADd"},
      {"\\'e4\\'C4\\'80\\'96\\'81\\'00\\'1f\\'7f.", "\u00E4\u00C4\u20AC\u2013\uFFFD."},
      {"\\lquote a\\rquote\\ldblquote b\\rdblquote\\emdash\\endash  \\bullet\\emspace\\enspace.",
       "\u2018a\u2019\u201Cb\u201D\u2014\u2013 \u2022\u2003\u2002."},
      {" a\tb\\tab c\\\td\\line e\\page f\\u8232?g", "a\\tb\\tc\\td\\ne\nf\\ng"},
      {" b\xE4r", "b\u00E4r"},
      {"\\u8364 ?\\u-10179\\'3f\\u-8694?x", "\u20AC\U0001F60Ax"},
      {"\\uc0\\u55357 \\uc1 \\u56842?x\\uc2\\u8226\\'a1\\'a2y{\\uc0\\u246}\\u246 ab\\u246\\par c",
       "\U0001F60Ax\u2022y\u00F6\u00F6\u00F6\nc"},
      {"\\uc1\\u8364\\~x\\u8364{?}\\u150?\\u128522?\\u-99999?\\u2147483648?\\u0?\\u10?.",
       "\u20ACx\u20AC?\u2013\U0001F60A\uFFFD\uFFFD."},
      {"\\u8364\\\nx\\u8364{\\b ?}", "\u20AC\nx\u20AC<b|?>"},
      {"\\uc0\\u55357 a\\u56842 b{\\u55357}\\u56842 \\u55357\\par",
       "\uFFFDa\uFFFDb\uFFFD\uFFFD\uFFFD"},
      {"{\\fonttbl{\\f1\\fcharset2 Symbol;}{\\f2\\fcharset2 Wingdings 2;}{\\f3\\fcharset2 Odd;}}"
       "{\\f1\\'b7\\u-3926?}\\'b7{\\f2\\'fc}{\\f3 a\\'b7}",
       "\u2022\u2660\u00B7\u2713a\u00B7"},
  });
}

TEST(RichText, ReadsHowParagraphsAreLaidOut) {
  ExpectReadings({
      {"\\qc a\\par b\\par\\pard\\qr c\\par\\ql d\\par\\qj e",
       "(centre)a\n(centre)b\n(right)c\nd\n(justified)e"},
      {"\\li720\\fi-360\\ri20\\sb60\\sa80\\tx300\\tqr\\tx900 a\\par{\\pard\\li1 b\\par}c",
       "(li720 ri20 fi-360 sb60 sa80 tx300 tx900)a\n(li1)b\n(li720 ri20 fi-360 sb60 sa80 tx300 "
       "tx900)c"},
      {"\\li4294967316\\fi-4294967316\\ri99999\\sb99999\\sa-5\\tx-5\\tx0\\tx99999 a",
       "(li28800 ri28800 fi-28800 sb28800 tx28800)a"},
      {" a\\par\\par b\\sect c\\\nd\\par", "a\n\nb\nc\nd"},
      {"{\\pntext\\f1\\'95\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'95}}a\\par"
       "{\\listtext\\pard\\plain  1.\\tab}b\\par{\\listtext\\tab}c\\par{\\*\\listtext\\u-3913?}d",
       "(\u2022)a\n(1.)b\nc\n(\u2022)d"},
      {"{\\fonttbl\\f1\\fcharset2 Odd;}{\\listtext\\f1\\'c5\\cell\\par}a", "(\u2022)a"},
      {"\\outlinelevel0 a\\par\\outlinelevel9 b\\par\\pard c", "(h1)a\nb\nc"},
      {"{\\stylesheet{Normal;}{\\s1\\b\\outlinelevel1 Title;}{\\s2 Heading 3;}{\\*\\cs3 heading "
       "4;}}"
       "\\s1 a\\par\\pard\\s2 b\\par\\s3 c\\par\\s1\\outlinelevel4 d\\par\\pard e",
       "(h2)a\n(h3)b\nc\n(h5)d\ne"},
  });
}

TEST(RichText, ReadsTables) {
  ExpectReadings({
      {"a\\par\\trowd\\trleft-50\\cellx100\\cellx200\\pard\\intbl b\\cell\\b c\\par d\\cell\\row"
       "\\pard\\plain e",
       "a\ntable\n  -50 100[b] 200[<b|c> / <b|d>]\ne"},
      {"{\\colortbl;\\red1;}\\trowd\\clbrdrt\\brdrs\\clcbpat1\\cellx9\\cellx20\\intbl a\\cell"
       "\\cell\\row b\\cell c\\cell\\row",
       "bordered table\n  0 9#010000[a] 20[]\n  0 9#010000[b] 20[c]"},
      {"\\trowd\\clbrdrt\\brdrnone\\clbrdrb\\brdrtbl\\cellx9 a\\cell\\row", "table\n  0 9[a]"},
      {"\\trowd\\trbrdrt\\brdrs\\cellx9 a\\cell\\row", "bordered table\n  0 9[a]"},
      {"\\trowd\\cellx9\\intbl a\\cell\\trowd\\cellx9\\row\\trowd\\cellx8\\intbl b\\cell\\row",
       "table\n  0 9[a]\n  0 8[b]"},
      {"\\trowd\\cellx9\\clmrg\\cellx20\\cellx30 a\\cell\\cell b\\cell\\row",
       "table\n  0 20[a] 30[b]"},
      {"\\trowd\\trleft5\\clbrdrt\\brdrs\\clbrdrb\\brdrnil\\cellx9 a\\cell\\row\\pard b\\par"
       "\\trowd\\cellx9 c\\cell\\row",
       "bordered table\n  5 9[a]\nb\ntable\n  0 9[c]"},
      // What a broken row still gives.
      {"\\trowd\\cellx9 a\\par b\\cell\\row\\trowd\\cellx9 c\\par\\row",
       "table\n  0 9[a / b]\n  0 9[c]"},
      {"\\trowd\\cellx50\\cellx20 a\\cell b\\cell c\\cell d\\row e",
       "table\n  0 50[a] 50[b] 1490[c] 2930[d]\ne"},
      {"\\trowd\\cellx21845\\cellx65534\\cellx2000000 a\\cell b\\cell c\\cell\\row",
       "table\n  0 21845[a] 65534[b] 1000000[c]"},
      {"\\trowd\\cellx9\\trleft30 a\\cell\\row", "table\n  30 30[a]"},
      {"\\trowd\\cellx9\\trleft99999 a\\cell\\row", "table\n  28800 28800[a]"},
      {"\\trowd\\cellx9\\row\\row a\\cell", "table\n  0 9[a]"},
      {"\\intbl a\\par\\pard b", "a\nb"},
      {"\\trowd\\cellx9\\row\\intbl a\\cell\\pard b\\par c", "table\n  0 9[a]\nb\nc"},
  });
}

TEST(RichText, PassesOverWhatIsNoText) {
  ExpectReadings({
      {"{\\info{\\title no}}{\\header no\\par}{\\pict 00ff}{\\*\\unknown no{\\b no}}a", "a"},
      {"{\\field{\\*\\fldinst HYPERLINK \"no\"}{\\fldrslt{\\ul yes}}}{\\footnote no}", "<u|yes>"},
      {"{\\*\\bkmkstart no}a{\\bkmkend no}\\unknown1 b{\\*\\b no}{\\*c}", "abc"},
      {" a\\bin3 {}}b\\bin0 c{\\pict\\bin2 }{}d\\bin-4 e", "abcde"},
      {" a\\nestcell b\\nestcell{\\*\\nesttableprops no}{\\nonesttables\\par}c", "a\\tb\\t\nc"},
      {"\\par}b", ""},
  });
  for (const std::string_view source :
       {"", "{", "{\\rt", "plain text", "\\rtf1 a", "<html>", "{\\b{\\rtf1 a}}"})
    EXPECT_EQ(DumpDocument(ReadSoundly(source)), "") << source;
  EXPECT_EQ(DumpDocument(ReadSoundly("\xEF\xBB\xBF\r\n {\\rtf1 a}")), "a\n");
}

TEST(RichText, ReadsTheSamples) {
  const std::vector<fs::path> samples = ListFiles(TestFolder / "richtext", ".rtf");
  EXPECT_EQ(samples.size(), 3);
  for (const fs::path& sample : samples)
    EXPECT_EQ(DumpDocument(ReadSoundly(ReadFile(sample))),
              ReadFile(fs::path(sample).replace_extension(".txt")))
        << sample;
}

TEST(RichText, GivesWhatStandsBeforeABreak) {
  for (const std::string_view end :
       {"", "\\", "\\'", "\\'e", "\\u", "\\bin", "\\bin9999999999 x", "{", "{\\*",
        "{\\fonttbl{\\f0", "{\\pict 0", "{\\*\\x", "}}}} {\\rtf1 no}", "\\u-10179?"}) {
    const std::string dump = DumpDocument(ReadSoundly("{\\rtf1 text" + std::string(end)));
    EXPECT_TRUE(dump.starts_with("text")) << end << " gives " << dump;
    EXPECT_EQ(std::count(dump.begin(), dump.end(), '\n'), 1) << end;
  }
  const std::string_view zeroes("{\\rtf1 a\0b\\par\0c}", 17);
  EXPECT_EQ(DumpDocument(ReadSoundly(zeroes)), "ab\nc\n");
}

struct LargeCase {
  const char* what;
  std::string_view part;
  std::size_t times;
  bool isCut;
};

TEST(RichText, BoundsWhatItReads) {
  constexpr std::size_t Many = 1'000'000;
  for (const LargeCase& example : {
           LargeCase{"the last character", "x", MostCharacters - 1, false},
           LargeCase{"a character too many", "x", MostCharacters, true},
           LargeCase{"the last paragraphs", "\\par ", MostParagraphs - 1, false},
           LargeCase{"paragraphs", "\\par ", Many, true},
           LargeCase{"the last runs", "\\b a\\b0 b", MostRuns / 2 - 1, false},
           LargeCase{"runs", "\\b a\\b0 b", Many, true},
           LargeCase{"cells", "\\cell", Many, true},
           LargeCase{"rows", "\\trowd\\cellx1\\cell\\row", Many, true},
           LargeCase{"planned cells", "\\cellx1", Many, false},
           LargeCase{"rows of one plan", "\\cell\\row", Many, true},
           LargeCase{"markers", "{\\pntext 1.}", Many, true},
           LargeCase{"tabs", "\\tx1\\tx2\\par", Many, true},
           LargeCase{"opened groups", "{", Many, false},
           LargeCase{"opened and closed groups", "{}", Many, false},
           LargeCase{"bold groups", "{\\b", Many, false},
           LargeCase{"fonts", "{\\fonttbl\\f1 x;\\f2 y;}", Many, false},
           LargeCase{"a font without end", "{\\fonttbl xyz", Many, false},
           LargeCase{"colours", "{\\colortbl;;", Many, false},
           LargeCase{"digits", "\\b1", Many, false},
           LargeCase{"letters of a word", "\\bbbbbb", Many, false},
       }) {
    const Document document =
        ReadSoundly("{\\rtf1 x" + Repeat(example.part, example.times) + "\\par");
    EXPECT_EQ(document.IsCut, example.isCut) << example.what;
    EXPECT_FALSE(document.Blocks.empty()) << example.what;
  }
  ReadSoundly("{\\rtf1{\\fonttbl\\f1 " + Repeat("long", 20'000) + ";}\\f1" +
              Repeat("{\\b a}b", 2'000));
}

TEST(RichText, KeepsTheLooksOfGroupsItCanHoldOnly) {
  const std::string deep = Repeat("{", 1'000'000);
  const std::string shallow = Repeat("}", 1'000'000);
  EXPECT_EQ(DumpDocument(ReadSoundly("{\\rtf1{\\b a" + deep + "\\i b" + shallow + "c}d}")),
            "<b|a><b i|b><b|c>d\n");
}

TEST(RichText, StaysSoundWhenSamplesAreCutOrChanged) {
  for (const fs::path& sample : ListFiles(TestFolder / "richtext", ".rtf")) {
    const std::string source = ReadFile(sample);
    for (std::size_t length = 0; length < source.size(); length += 7)
      ReadSoundly(std::string_view(source).substr(0, length));
    for (std::size_t place = 0; place < source.size(); place += 31)
      for (const char byte : {'{', '}', '\\', ';', '\0', '9', '\xFF'}) {
        std::string changed = source;
        changed[place] = byte;
        ReadSoundly(changed);
      }
  }
}

TEST(RichText, StaysSoundOnWhatFuzzingFound) {
  const std::vector<fs::path> corpus = ListFiles(TestFolder / "fuzz/corpus/richtext", "");
  EXPECT_FALSE(corpus.empty());
  for (const fs::path& source : corpus) {
    SCOPED_TRACE(source);
    ReadSoundly(ReadFile(source));
  }
}

}  // namespace
}  // namespace Parlino::RichText
