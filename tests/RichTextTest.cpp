#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "richtext/Reader.h"
#include "tests/support/DocumentDump.h"
#include "tests/support/DocumentFaults.h"
#include "tests/support/Rows.h"

namespace Parlino::RichText {
namespace {

namespace fs = std::filesystem;

const fs::path TestFolder = PARLINO_SOURCE_FOLDER "/tests";

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

TEST(RichText, ReadsTextLayoutAndTables) {
  for (Parlino::Row& reading : ReadRows("richtext/readings.txt", "reading", " => ")) {
    const std::string source = "{\\rtf1" + reading["source"] + "}";
    std::string dump = DumpDocument(ReadSoundly(source));
    if (dump.ends_with('\n')) dump.pop_back();
    EXPECT_EQ(dump, reading["dump"]) << source;
  }
}

TEST(RichText, PassesOverWhatIsNoDocument) {
  for (const std::string_view source :
       {"", "{", "{\\rt", "plain text", "\\rtf1 a", "<html>", "{\\b{\\rtf1 a}}"})
    EXPECT_EQ(DumpDocument(ReadSoundly(source)), "") << source;
  EXPECT_EQ(DumpDocument(ReadSoundly("\xEF\xBB\xBF\r\n {\\rtf1 a}")), "a\n");
}

TEST(RichText, ReadsTheSamples) {
  const std::vector<fs::path> samples = ListFiles(TestFolder / "richtext", ".rtf");
  EXPECT_EQ(samples.size(), 3);
  for (const fs::path& sample : samples)
    EXPECT_EQ(DumpDocument(ReadSoundly(ReadText(sample))),
              ReadText(fs::path(sample).replace_extension(".txt")))
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

TEST(RichText, BoundsWhatItReads) {
  for (Parlino::Row& row : ReadRows("richtext/readings.txt", "large", " => ")) {
    const Document document =
        ReadSoundly("{\\rtf1 x" + Repeat(row["part"], std::stoul(row["times"])) + "\\par");
    EXPECT_EQ(document.IsCut, row["cut"] == "yes") << row["what"];
    EXPECT_FALSE(document.Blocks.empty()) << row["what"];
  }
  ReadSoundly("{\\rtf1{\\fonttbl\\f1 " + Repeat("long", 20'000) + ";}\\f1" +
              Repeat("{\\b a}b", 2'000));
}

TEST(RichText, KeepsTheLooksOfGroupsItCanHoldOnly) {
  const std::string deep = Repeat("{", 300'000);
  const std::string shallow = Repeat("}", 300'000);
  EXPECT_EQ(DumpDocument(ReadSoundly("{\\rtf1{\\b a" + deep + "\\i b" + shallow + "c}d}")),
            "<b|a><b i|b><b|c>d\n");
}

TEST(RichText, StaysSoundWhenSamplesAreCutOrChanged) {
  for (const fs::path& sample : ListFiles(TestFolder / "richtext", ".rtf")) {
    const std::string source = ReadText(sample);
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
    ReadSoundly(ReadText(source));
  }
}

}  // namespace
}  // namespace Parlino::RichText
