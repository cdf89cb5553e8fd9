#include "time/TimeLexer.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "time/Month.h"

namespace {

// Writes each token it is given as a line of text, to compare token streams.
class Recorder : public TimeLexemeAcceptor {
  public:
    std::vector<std::string> tokens;

    void Reset() override { tokens.push_back("reset"); }
    void AcceptEnd(unsigned long position) override {
        tokens.push_back("end " + std::to_string(position));
    }
    void AcceptReservedWord(Range<unsigned long>, TimeParsingAction action) override {
        tokens.push_back("word " + std::to_string(action.part) + " " +
                         std::to_string(action.value));
    }
    void AcceptOrdinaryWord(Range<unsigned long>, ConstData word) override {
        tokens.push_back("ordinary " + MakeString(word));
    }
    void AcceptWordOverflow(Range<unsigned long>) override { tokens.push_back("overflow"); }
    void AcceptOneDigit(unsigned long v) override { tokens.push_back("1:" + std::to_string(v)); }
    void AcceptTwoDigits(unsigned long v) override { tokens.push_back("2:" + std::to_string(v)); }
    void AcceptThreeDigits(unsigned long v) override { tokens.push_back("3:" + std::to_string(v)); }
    void AcceptFourDigits(unsigned long v) override { tokens.push_back("4:" + std::to_string(v)); }
    void AcceptOtherNumeral() override { tokens.push_back("numeral"); }
    void AcceptCharacter(Range<unsigned long>, unsigned char c) override {
        tokens.push_back(std::string("char ") + char(c));
    }
};

std::vector<std::string> Lex(std::string const& text, std::vector<std::size_t> const& cuts = {}) {
    Recorder recorder;
    TimeLexer lexer(recorder);
    lexer.Start();
    std::size_t from = 0;
    for (std::size_t cut : cuts) {
        lexer.Receive(ConstData(text.data() + from, text.data() + cut));
        from = cut;
    }
    lexer.Receive(ConstData(text.data() + from, text.data() + text.size()));
    lexer.ReceiveEnd();
    return recorder.tokens;
}

// The reserved words, built from their rules rather than copied: the short names of months and
// days, the letter zones (A to I east by one to nine hours, K to M ten to twelve, N to Y west by
// one to twelve, Z for universal time; J is not a zone) and the named zones of North America,
// whose daylight form is one hour east of the standard one.
std::map<std::string, std::string> ExpectedReservedWords() {
    auto token = [](TimeLanguage::PartOfSpeech part, long value) {
        return "word " + std::to_string(part) + " " + std::to_string(value);
    };
    std::map<std::string, std::string> words;
    for (unsigned m = January; m <= December; ++m) {
        std::string name = MonthToText(static_cast<Month>(m));
        name[0] = static_cast<char>(name[0] - 'A' + 'a');
        words[name] = token(TimeLanguage::MonthName, m);
    }
    for (unsigned d = Sunday; d <= Saturday; ++d) {
        std::string name = DayOfWeekToText(static_cast<DayOfWeek>(d));
        name[0] = static_cast<char>(name[0] - 'A' + 'a');
        words[name] = token(TimeLanguage::DayName, d);
    }
    long const hour = 3600;
    for (char letter = 'a'; letter <= 'i'; ++letter)
        words[std::string(1, letter)] =
            token(TimeLanguage::MilitaryZone, (letter - 'a' + 1) * hour);
    for (char letter = 'k'; letter <= 'm'; ++letter)
        words[std::string(1, letter)] =
            token(TimeLanguage::MilitaryZone, (letter - 'k' + 10) * hour);
    for (char letter = 'n'; letter <= 'y'; ++letter)
        words[std::string(1, letter)] =
            token(TimeLanguage::MilitaryZone, -(letter - 'n' + 1) * hour);
    words["z"] = token(TimeLanguage::MilitaryZone, 0);
    words["ut"] = token(TimeLanguage::NamedZone, 0);
    words["gmt"] = token(TimeLanguage::NamedZone, 0);
    struct {
        char letter;
        long standardHours;
    } const zones[] = {{'e', -5}, {'c', -6}, {'m', -7}, {'p', -8}};
    for (auto const& zone : zones) {
        words[std::string(1, zone.letter) + "st"] =
            token(TimeLanguage::NamedZone, zone.standardHours * hour);
        words[std::string(1, zone.letter) + "dt"] =
            token(TimeLanguage::NamedZone, (zone.standardHours + 1) * hour);
    }
    return words;
}

}  // namespace

// The lexer finds words by binary search, so the table must be in byte order; each word is
// found in any case with its meaning, and the table holds no word besides these.
TEST(TimeLexer, ReservedWordsAreSortedAndMeanWhatTheyName) {
    auto const table = TimeLexer::ReservedWords();
    for (auto const* entry = table.start + 1; entry != table.end; ++entry)
        EXPECT_LT(Compare(ConstData(entry[-1].word), ConstData(entry->word)), 0) << entry->word;
    std::map<std::string, std::string> const expected = ExpectedReservedWords();
    EXPECT_EQ(static_cast<std::size_t>(table.end - table.start), expected.size());
    for (auto const& [word, token] : expected) {
        std::string upper = word;
        for (char& c : upper) c = static_cast<char>(c - 'a' + 'A');
        std::string mixed = upper;
        mixed[0] = word[0];
        EXPECT_EQ(Lex(word),
                  (std::vector<std::string>{"reset", token, "end " + std::to_string(word.size())}))
            << word;
        EXPECT_EQ(Lex(upper)[1], token) << upper;
        EXPECT_EQ(Lex(mixed)[1], token) << mixed;
    }
}

TEST(TimeLexer, TokensByTheClassOfTheirFirstByte) {
    using V = std::vector<std::string>;
    struct {
        char const* text;
        V tokens;
    } const cases[] = {
        {"", {"reset", "end 0"}},
        {"04Mar2000", {"reset", "2:4", "word 1 3", "4:2000", "end 9"}},
        {" 7:05 ", {"reset", "1:7", "char :", "2:5", "end 6"}},
        {"June", {"reset", "overflow", "end 4"}},
        {"Monday,", {"reset", "overflow", "char ,", "end 7"}},
        {"abc j", {"reset", "ordinary abc", "ordinary j", "end 5"}},
        {"12345 0099999", {"reset", "numeral", "numeral", "end 13"}},
        {"+-;\x80", {"reset", "char +", "char -", "char ;", "char \x80", "end 4"}},
        {"\t\r\n005", {"reset", "3:5", "end 6"}},
    };
    for (auto const& c : cases) EXPECT_EQ(Lex(c.text), c.tokens) << c.text;
}

TEST(TimeLexer, ChunkingDoesNotChangeTheTokens) {
    std::mt19937 random(3);
    char const alphabet[] = "aZm09 ,:+-x\t";
    for (int i = 0; i < 3000; ++i) {
        std::string text;
        std::size_t const length = random() % 24;
        for (std::size_t j = 0; j < length; ++j) text += alphabet[random() % (sizeof alphabet - 1)];
        std::vector<std::size_t> cuts;
        for (std::size_t at = 0; at <= text.size(); ++at)
            if (random() % 3 == 0) cuts.push_back(at);
        ASSERT_EQ(Lex(text, cuts), Lex(text)) << text;
    }
}
