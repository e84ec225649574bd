// The tokenizer: which tokens a command's text becomes, and where its errors are.

#include "ctables/recastor/commandboundary.h"
#include "ctables/recastor/zelktokenvector.h"
#include "tests/support/dump.h"
#include "tests/support/textlocale.h"

#include <clocale>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

namespace {

using Base = TokenSequenceBase;

struct Row {
    std::string text;
    std::string tokens;
};

void ExpectTokens(const std::vector<Row>& rows, bool batch = false) {
    for (const auto& [text, tokens] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(DumpTokens(text, batch), tokens);
    }
}

void ExpectPlaces(const std::vector<Row>& rows, bool batch = false) {
    for (const auto& [text, tokens] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(DumpTokens(text, batch, 0, true), tokens);
    }
}

class Tokenizer : public Utf8Test {};

TEST_F(Tokenizer, TextWithoutTokensIsLegal) {
    ExpectTokens({{"", ""}, {" \t\r\n", ""}, {",", ""}, {" , ,,\n,", ""}, {"/* a comment", ""}});
    EXPECT_EQ(ZELKTokenVector(nullptr, false, 0).Count(), 0);
    EXPECT_EQ(ZELKTokenVector(nullptr, true, 2).TypeOfCommand(), 0);
}

TEST_F(Tokenizer, CommaSeparatesAndLeavesNoToken) {
    ExpectTokens({{"a,b", "a b"}, {",a,,b,", "a b"}, {"1,2", "#1 #2"}, {"'a','b'", "`a` `b`"}});
}

TEST_F(Tokenizer, WordsTakeDigitsUnderscoresAndPeriods) {
    ExpectTokens({
        {"x1_2.3", "x1_2.3"},
        {"DATA.", "DATA."},
        {"#a $b @c", "#a $b @c"},
        {"a#b$c@", "a#b$c@"},
        {"_x", "kUnderscore x"},
        {".x", "kPeriod x"},
        {"a-b", "a kMinus b"},
        {"1abc", "#1 abc"},
        {"gr\u00F6\u00DFe, \u20AC", "gr\u00F6\u00DFe \u20AC"},
    });
}

TEST_F(Tokenizer, WordsValueIsUpperCased) {
    const ZELKTokenVector tokens("Gr\u00F6\u00DFe By", false, 0);
    EXPECT_EQ(tokens[0].AsString(true), "Gr\u00F6\u00DFe");
    EXPECT_EQ(tokens[0].AsString(false), "GR\u00F6\u00DFE");
    EXPECT_EQ(tokens[1].AsString(true), "By");
    EXPECT_EQ(tokens[1].AsString(false), "BY");
}

TEST_F(Tokenizer, WordsOfEveryLengthAreUpperCasedWhateverStandsBehind) {
    const std::string lower = "abcdefghijklmnopqrstuvwxyz";
    const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (std::size_t size = 1; size <= lower.size(); ++size) {
        for (const char* behind : {"", " ", "+zzzzzzzzzzzzzzzzzzzz", " \u00F6\u00DF\u20AC"}) {
            const std::string text = lower.substr(0, size) + behind;
            SCOPED_TRACE(text);
            const ZELKTokenVector tokens(text.c_str(), false, 1);
            EXPECT_EQ(tokens[0].AsString(true), lower.substr(0, size));
            EXPECT_EQ(tokens[0].AsString(false), upper.substr(0, size));
            const std::string capitals = upper.substr(0, size) + behind;
            EXPECT_EQ(ZELKTokenVector(capitals.c_str(), false, 1)[0].AsString(false),
                      upper.substr(0, size));
        }
    }
}

/// The tokens' operator codes.
std::vector<int> Codes(const std::string& text) {
    const ZELKTokenVector tokens(text.c_str(), false, 0);
    std::vector<int> codes;
    for (int i = 0; i < tokens.Count(); ++i) {
        codes.push_back(tokens[i].OpCode());
    }
    return codes;
}

TEST_F(Tokenizer, ReservedWordsAreWordsWithAnOperator) {
    const std::vector<std::pair<std::string, int>> words{
        {"LT", 1},  {"GT", 2},    {"EQ", 3},   {"LE", 4},  {"GE", 5},  {"NE", 6},  {"NOT", 7},
        {"TO", 30}, {"WITH", 31}, {"AND", 32}, {"OR", 33}, {"BY", 34}, {"ALL", 35}};
    for (const auto& [word, code] : words) {
        SCOPED_TRACE(word);
        std::string lower = word;
        for (char& letter : lower) {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
        EXPECT_EQ(Codes("x " + word + ' ' + lower + ' ' + word.substr(0, 1) + lower.substr(1)),
                  (std::vector{0, code, code, code}));
        EXPECT_EQ(Codes("x " + word + "X " + word + ". " + word + "_ #" + word),
                  (std::vector{0, 0, 0, 0, 0}));
        EXPECT_EQ(ZELKTokenVector(word.c_str(), false, 0)[0].Type(), Base::kString);
    }
    EXPECT_EQ(Codes("x B A T WIT"), (std::vector{0, 0, 0, 0, 0}));
}

TEST_F(Tokenizer, EveryOperatorHasItsCode) {
    const std::vector<std::pair<std::string, int>> operators{
        {"<", 1},  {">", 2},  {"=", 3},   {"~", 7},   {"+", 8},   {"-", 9},   {"*", 10},  {"/", 11},
        {"(", 13}, {")", 14}, {":", 16},  {";", 17},  {".", 18},  {"_", 19},  {"?", 20},  {"%", 21},
        {"|", 22}, {"&", 23}, {"{", 24},  {"}", 25},  {"[", 36},  {"]", 37},  {"<=", 4},  {">=", 5},
        {"~=", 6}, {"<>", 6}, {"**", 12}, {"&*", 26}, {"&/", 27}, {"*>", 29}, {"&**", 28}};
    for (const auto& [symbol, code] : operators) {
        SCOPED_TRACE(symbol);
        EXPECT_EQ(Codes("x " + symbol), (std::vector{0, code}));
        EXPECT_EQ(Codes("x " + symbol + " y"), (std::vector{0, code, 0}));
        const ZELKTokenVector tokens(("x " + symbol + "y").c_str(), false, 0);
        EXPECT_EQ(tokens[1].AsString(true), symbol);
        EXPECT_EQ(tokens[1].Type(), Base::kOperator);
    }
}

TEST_F(Tokenizer, SymbolsAndTheWordOfNotEqualHaveOneCode) {
    for (const char* text : {"x ~= 1", "x <> 1", "x NE 1", "x~=1", "x<>1"}) {
        EXPECT_EQ(Codes(text), (std::vector{0, 6, 0})) << text;
    }
}

TEST_F(Tokenizer, LongestOperatorIsFoundThroughTheShorter) {
    ExpectTokens({
        {"a &** b", "a kElemPower b"},
        {"a &* b", "a kElemMult b"},
        {"a &*>", "a kElemMult kGreaterThan"},
        {"a ***", "a kPower kAsterisk"},
        {"a **>", "a kPower kGreaterThan"},
        {"a *>*", "a kXtabNest kAsterisk"},
        {"a <>=", "a kNotOperator kEquals"},
        {"a <==", "a kLtOrEq kEquals"},
        {"a =<", "a kEquals kLessThan"},
        {"a < =", "a kLessThan kEquals"},
        {"a &&*", "a kAmpersand kElemMult"},
        {"a //", "a kSlash kSlash"},
        {"a <\u00E9", "a kLessThan \u00E9"},
        {"a &*\u00E9", "a kElemMult \u00E9"},
        {"a ,=", "a kEquals"},
        {"a ()[]{}", "a kLeftParen kRightParen kLeftSqBracket kRightSqBracket kLeftBrace "
                     "kRightBrace"},
    });
}

TEST_F(Tokenizer, NumbersAreWrittenWithAPointAndAnExponent) {
    ExpectTokens({
        {"0", "#0"},
        {"007", "#7"},
        {".5", "#0.5"},
        {"5.", "#5"},
        {"5.25", "#5.25"},
        {"1E3", "#1000"},
        {"1e+3", "#1000"},
        {"25.e-1", "#2.5"},
        {".5E1", "#5"},
        {"-5", "kMinus #5"},
        {"2E3x", "#2000 x"},
        {"1e5.5", "#100000 #0.5"},
        {"1 2", "#1 #2"},
        {"0x", "#0 x"},
        {"00x1A", "#0 x1A"},
    });
}

TEST_F(Tokenizer, PointsAloneAreOperators) {
    ExpectTokens({
        {".", "kPeriod"},
        {"..", "kPeriod kPeriod"},
        {"..5", "kPeriod #0.5"},
        {". 5", "kPeriod #5"},
        {".E5", "kPeriod E5"},
    });
}

TEST_F(Tokenizer, SecondPointBeginsAnotherNumber) {
    const ZELKTokenVector tokens("1..2", false, 0);
    ASSERT_EQ(tokens.Count(), 2);
    EXPECT_EQ(tokens[0].AsString(true), "1.");
    EXPECT_EQ(tokens[0].AsNumber(), 1.0);
    EXPECT_EQ(tokens[1].AsString(true), ".2");
    EXPECT_EQ(tokens[1].AsNumber(), 0.2);
}

TEST_F(Tokenizer, ExponentNeedsDigits) {
    ExpectTokens({
        {"1E", "error 2@1:3"},
        {"1e+", "error 2@1:4"},
        {"1e-x", "error 2@1:4"},
        {"a 12.5Ex", "error 2@1:8"},
        {"a\n 1E", "error 2@2:3"},
        {".5e", "error 2@1:4"},
    });
}

TEST_F(Tokenizer, NumberThatNoDoubleHoldsIsInvalidAtItsStart) {
    ExpectTokens({
        {"0x1A", "error 3@1:1"},
        {"0X1", "error 3@1:1"},
        {"a 0x1A", "error 3@1:3"},
        {"1e999", "error 3@1:1"},
        {"1e-999", "error 3@1:1"},
        {"a\nb 1e400 c", "error 3@2:2"},
        {std::string(400, '9'), "error 3@1:1"},
        {std::string(300, '0') + "1", "#1"},
    });
}

TEST_F(Tokenizer, NumberIsReadAfterAnotherFailed) {
    EXPECT_EQ(DumpTokens("1e999"), "error 3@1:1");
    EXPECT_EQ(DumpTokens("1e9"), "#1e+09");
}

TEST_F(Tokenizer, DecimalSignIsThePointInEveryLocale) {
    const TextLocale german("de_DE.ISO-8859-1");
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, "de_DE.ISO-8859-1"), "de_DE.ISO-8859-1");
    ASSERT_EQ(std::strtod("2,5", nullptr), 2.5) << "the locale has no decimal comma";
    const ZELKTokenVector tokens("1.25 2,5", false, 0);
    const std::string after = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(tokens[0].AsNumber(), 1.25);
    EXPECT_EQ(tokens[1].AsNumber(), 2.0);
    EXPECT_EQ(tokens[2].AsNumber(), 5.0);
    EXPECT_EQ(after, "de_DE.ISO-8859-1");
}

TEST_F(Tokenizer, MacroNamesAreWords) {
    ExpectTokens({
        {"!", "!"},
        {"!*", "!*"},
        {"!**", "!* kAsterisk"},
        {"!12", "!12"},
        {"!vars.x_1", "!vars.x_1"},
        {"!_a", "!_a"},
        {"!!", "! !"},
        {"!=", "! kEquals"},
        {"! a", "! a"},
        {"!\u00E9", "!\u00E9"},
        {"!1.5", "!1 #0.5"},
    });
}

TEST_F(Tokenizer, MacroNumberEndsBeforeTheWordBehindIt) {
    const ZELKTokenVector tokens("!1abc !to", false, 0);
    ASSERT_EQ(tokens.Count(), 3);
    EXPECT_EQ(tokens[0].AsString(true), "!1");
    EXPECT_EQ(tokens[1].AsString(false), "ABC");
    EXPECT_EQ(tokens[2].AsString(false), "!TO");
    EXPECT_EQ(tokens[2].OpCode(), Base::kNotOperator);
}

TEST_F(Tokenizer, ClosedCommentLeavesItsSlash) {
    ExpectTokens({
        {"/* note */ FREQ", "kSlash FREQ"},
        {"a /**/ b", "a kSlash b"},
        {"a/* x */b", "a kSlash b"},
        {"a /* x */* y", "a"},
        {"a /* it's\nb", "a b"},
        {"a /* x */ /* y */ b", "a kSlash kSlash b"},
        {"/* one\n/* two\nb", "b"},
        {"a / * b", "a kSlash kAsterisk b"},
        {"a /* `\\^", "a"},
    });
}

TEST_F(Tokenizer, CharactersThatBeginNoTokenAreInvalid) {
    std::set<int> invalid;
    for (int code = 1; code < 128; ++code) {
        const std::string text = std::string("a ") + static_cast<char>(code);
        if (DumpTokens(text) == "error 4@1:3") {
            invalid.insert(code);
        }
    }
    std::set<int> expected{'`', '\\', '^', 127};
    for (int code = 1; code < 32; ++code) {
        if (code != '\t' && code != '\n' && code != '\r') {
            expected.insert(code);
        }
    }
    EXPECT_EQ(invalid, expected);
    ExpectTokens({{"a\n b `", "error 4@2:3"}, {"\u00E9\u00E9 `", "error 4@1:4"}});
}

TEST_F(Tokenizer, InvalidBytesAreTheEnd) {
    ExpectTokens({{"a b\xFF c '", "a b"}, {"\xC3(", ""}, {"a \xE2\x82", "a"}});
}

TEST_F(Tokenizer, LegacyCharacterHidesItsSecondByte) {
    const TextLocale chinese("zh_CN.GBK");
    ExpectTokens({
        {"a\x81\x5C b", "a\x81\x5C b"},
        {"\x81\x7C|", "\x81\x7C kVerticalBar"},
        {"'\x81\x60'", "`\x81\x60`"},
    });
    EXPECT_EQ(ZELKTokenVector("x\x81\x61z", false, 0)[0].AsString(false), "X\x81\x61Z");
}

TEST_F(Tokenizer, HighBytesOfAnEightBitEncodingAreLetters) {
    const TextLocale latin("de_DE.ISO-8859-1");
    ExpectPlaces({{"gr\xF6\xDF"
                   "e '\xFC' x",
                   "gr\xF6\xDF"
                   "e@1:1 `\xFC`@1:7 x@1:11"}});
}

TEST_F(Tokenizer, BatchModeSkipsASignInFront) {
    ExpectPlaces({{"+a", "a@1:2"},
                  {"-a", "a@1:2"},
                  {"++a", "kPlus@1:2 a@1:3"},
                  {" +a", "kPlus@1:2 a@1:3"},
                  {"a +b", "a@1:1 kPlus@1:3 b@1:4"},
                  {"+", ""},
                  {"*a", "kAsterisk@1:1"}},
                 true);
    ExpectPlaces({{"+a", "kPlus@1:1 a@1:2"}, {"-a", "kMinus@1:1 a@1:2"}});
}

TEST_F(Tokenizer, ColumnsCountFromOneOnTheFirstLineAndFromNoughtOnLaterOnes) {
    ExpectPlaces({
        {"A B\nA B", "A@1:1 B@1:3 A@2:0 B@2:2"},
        {"A\r\nB\rC\n\rD", "A@1:1 B@2:0 C@3:0 D@4:0"},
        {"\n\n  A", "A@3:2"},
        {"\t\u00E9\u00E9 B", "\u00E9\u00E9@1:2 B@1:5"},
        {"/* a\nB", "B@2:0"},
        {"/* a */ B", "kSlash@1:7 B@1:9"},
        {"A,B", "A@1:1 B@1:3"},
    });
}

TEST_F(Tokenizer, TokenLimitStopsBeforeWhatFollows) {
    EXPECT_EQ(DumpTokens("FREQUENCIES VARIABLES=x", false, 2), "FREQUENCIES VARIABLES");
    EXPECT_EQ(DumpTokens("a b '", false, 2), "a b");
    EXPECT_EQ(DumpTokens("a b '", false, 3), "error 1@1:6");
    EXPECT_EQ(DumpTokens("a,b,c", false, 2), "a b");
    EXPECT_EQ(DumpTokens("a b c", false, 1), "a");
    EXPECT_EQ(DumpTokens("a b c", false, 0), "a b c");
    EXPECT_EQ(DumpTokens("a b c", false, -1), "a b c");
}

TEST_F(Tokenizer, FreeTextOfACommandIsNotTokenized) {
    struct Opening {
        std::string text;
        std::string tokens;
        int state;
    };
    for (const auto& [text, tokens, state] : std::vector<Opening>{
             {"* it's `", "kAsterisk", kStateComment},
             {"** it's", "kPower", kStateComment},
             {"*> it's", "kXtabNest", kStateComment},
             {"COMMENT it's", "COMMENT", kStateComment},
             {"compute x='", "compute", kStateComment},
             {"Document it's", "Document", kStateDocument},
             {"BEGIN DATA it's", "BEGIN DATA", kStateInlineData},
             {"begin\n data. it's", "begin data.", kStateInlineData},
             {"BEGIN , DATA it's", "BEGIN DATA", kStateInlineData},
             {", * it's", "kAsterisk", kStateComment},
             {"/* a\n* it's", "kAsterisk", kStateComment},
             {"BEGIN", "BEGIN", 0},
             {"BEGIN GPL x", "BEGIN GPL x", 0},
             {"BEGIN GPL it's", "error 1@1:15", 0},
             {"FREQ * x", "FREQ kAsterisk x", 0},
             {"FREQ COMMENT x", "FREQ COMMENT x", 0},
             {"/* a */ COMMENT x", "kSlash COMMENT x", 0},
         }) {
        SCOPED_TRACE(text);
        EXPECT_EQ(DumpTokens(text), tokens);
        if (!tokens.starts_with("error")) {
            EXPECT_EQ(ZELKTokenVector(text.c_str(), false, 0).TypeOfCommand(), state);
        }
    }
    EXPECT_EQ(ZELKTokenVector("+* it's", true, 0).TypeOfCommand(), kStateComment);
    EXPECT_EQ(ZELKTokenVector("BEGIN DATA", false, 1).TypeOfCommand(), 0);
}

} // namespace

} // namespace recastor
