#include "ctables/recastor/tbtrtablescommand.h"

#include "ctables/recastor/abbreviation.h"
#include "platform/zelkbase/zelkassert.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace recastor {

namespace {

using Base = TokenSequenceBase;

/// What a minus is until it has become part of a number or, if there is none, SP_OTHEROP.
constexpr int kMinusSign = 510;

/// The slash that begins a command whose first subcommand has none.
constexpr std::string_view slash = "/";

struct Keyword {
    std::string_view text;
    int code;
};

/// The keywords by their first three characters. The first row that matches wins.
constexpr std::array<Keyword, 43> gTablesKWs{{
    {"AUTOLABEL", TB_AUTOLABEL},
    {"BASE", TB_BASE},
    {"BOXCHARS", TB_BOXCHARS},
    {"BREAK", TB_BREAK},
    {"CAPTION", TB_CAPTION},
    {"CONTINUED", TB_CONTINUED},
    {"CORNER", TB_CORNER},
    {"FONTCHARS", TB_FONTCHARS},
    {"FOOTNOTE", TB_FOOTNOTE},
    {"FORMAT", TB_FORMAT},
    {"FTOTAL", TB_FTOTAL},
    {"GBASE", TB_GBASE},
    {"INDEX", TB_INDEX},
    {"MDGROUP", TB_MDGROUP},
    {"MISSING", TB_MISSING},
    {"MRGROUP", TB_MRGROUP},
    {"OBSERVATION", TB_OBSERVATION},
    {"PFOOTNOTE", TB_PFOOTNOTE},
    {"PTITLE", TB_PTITLE},
    {"PTOTAL", TB_PTOTAL},
    {"SORT", TB_SORT},
    {"STATISTICS", TB_STATISTICS},
    {"TABLE", TB_TABLE},
    {"TFOOTNOTE", TB_TFOOTNOTE},
    {"TITLE", TB_TITLE},
    {"WRITE", TB_WRITE},
    {"DEFAULT", TB_DEFAULT},
    {"ON", TB_ON},
    {"OFF", TB_OFF},
    {"ANSWERING", TB_ANSWERING},
    {"QUALIFIED", TB_QUALIFIED},
    {"ALL", SP_ALL},
    {"CASES", TB_CASES},
    {"RESPONSES", TB_RESPONSES},
    {"EXCLUDE", TB_EXCLUDE},
    {"INCLUDE", TB_INCLUDE},
    {"BLANK", TB_BLANK},
    {"ZERO", TB_ZERO},
    {"ASCENDING", TB_ASCENDING},
    {"DESCENDING", TB_DESCENDING},
    {"UNWEIGHTED", TB_UNWEIGHTED},
    {"U", TB_UNWEIGHTED},
    {"LABELS", TB_LABELS},
}};

/// The keyword table by abbreviations, for every word of a command may be looked up there and a
/// search in halves takes turns that no processor foresees. A row stands at the place that its
/// abbreviation tells or at the next one that was free. Of rows with the same one the first wins.
class KeywordPlaces {
public:
    constexpr KeywordPlaces() {
        for (const Keyword& keyword : gTablesKWs) {
            const std::uint32_t abbreviation = Abbreviation(keyword.text);
            Row& row = m_rows[PlaceOf(abbreviation)];
            if (row.code == 0) {
                row = {abbreviation, keyword.code};
            }
        }
    }
    /// The code of the first row that has the abbreviation; 0 when none has.
    constexpr int CodeOf(std::uint32_t abbreviation) const {
        return m_rows[PlaceOf(abbreviation)].code;
    }

private:
    struct Row {
        std::uint32_t abbreviation;
        int code; ///< 0 in a free place
    };

    /// So many that few rows claim the same place.
    static constexpr unsigned kPlaceBits = 8;

    /// Where the abbreviation stands, or the free place where it would.
    constexpr std::size_t PlaceOf(std::uint32_t abbreviation) const {
        constexpr std::uint32_t kScatter = 2654435769U; // 2 to the 32nd by the golden ratio
        std::size_t place = abbreviation * kScatter >> (32U - kPlaceBits);
        while (m_rows[place].code != 0 && m_rows[place].abbreviation != abbreviation) {
            place = (place + 1) % m_rows.size();
        }
        return place;
    }

    std::array<Row, 1U << kPlaceBits> m_rows{};
};

constexpr KeywordPlaces gKeywordPlaces;

bool IsSlash(const ZELKTokenSequence& tokens) {
    return tokens.Type() == Base::kOperator && tokens.Operator() == Base::kSlash;
}

int CodeOfOperatorWord(Base::OperatorCode code) {
    switch (code) {
    case Base::kGreaterThan:
        return SP_GREATERTHAN;
    case Base::kTo:
        return SP_TO;
    case Base::kBy:
        return SP_BY;
    case Base::kAll:
        return SP_ALL;
    default:
        return SP_OTHEROP;
    }
}

int CodeOfOperatorSymbol(Base::OperatorCode code) {
    switch (code) {
    case Base::kGreaterThan:
        return SP_GREATERTHAN;
    case Base::kPlus:
        return SP_PLUS;
    case Base::kMinus:
        return kMinusSign;
    case Base::kSlash:
        return SP_SLASH;
    case Base::kLeftParen:
        return SP_LPAREN;
    case Base::kRightParen:
        return SP_RPAREN;
    case Base::kColon:
        return SP_COLON;
    default:
        return SP_OTHEROP;
    }
}

/// A number token in the place of a sign and the number that follows it.
ZELKToken* MakeSignedNumber(const ZELKToken& sign, const ZELKToken& number, bool negative) {
    int line = 0;
    int column = 0;
    number.StartLocation(line, column);
    const std::string text = sign.AsString(true) + number.AsString(true);
    const double value = negative ? -number.AsNumber() : number.AsNumber();
    return new ZELKNumberToken(PaddedText(text), line, std::max(column - 1, 0), value);
}

} // namespace

TbTrTablesCommand TbTrTablesCommand::g_tablesCommand;

int TablesKeyword(const ZELKTokenSequence& tokens) {
    if (tokens.Type() != Base::kString || tokens.Operator() != Base::kNotOperator) {
        return 0;
    }
    const char* text = nullptr;
    unsigned length = 0;
    tokens.AsUpperString(text, length);
    return gKeywordPlaces.CodeOf(Abbreviation(std::string_view(text, length)));
}

std::string TbTrTablesCommand::KeywordFromCode(int code) {
    // The subcommand MISSING has a code of its own and no row.
    const int sought = code == TB_MISSINGSUBCOM ? TB_MISSING : code;
    for (const Keyword& keyword : gTablesKWs) {
        if (keyword.code == sought) {
            return std::string(keyword.text);
        }
    }
    return {};
}

void TbTrTablesCommand::Reset(ZELKTokenSequence* tokens) {
    m_pTokSeq.reset(tokens);
    m_position = 0;
    m_subcommand = 0;
    m_parenthesisDepth = 0;
    m_breakPosition = 0;
    m_resumePosition = 0;
    m_parseTree.reset();
    m_errorType = kNoError;
    m_errorCode = 0;
    m_errorLocation = {};
    m_errorString.clear();
    m_lastLocation = {};
    m_offendingLocation = {};
    m_warnings.clear();
}

int TbTrTablesCommand::GetNextToken(ZELKToken*& token) {
    token = nullptr;
    if (m_position == 0) {
        return DoStartUp(token);
    }
    if (!AdvanceAndHandleBreak()) {
        return 0;
    }
    int code = ClassifyCurrentToken();
    if (code == SP_PLUS || code == kMinusSign) {
        token = FoldSign(code);
    }
    UpdateSubcommandState(code);
    if (token == nullptr) {
        token = GiveToken();
    }
    return code;
}

/// The current token, for the parser to own. The arguments of BREAK will be read again, and with
/// them the slash that ends them.
ZELKToken* TbTrTablesCommand::GiveToken() {
    const bool staysHere = m_resumePosition != 0 || (m_breakPosition != 0 && IsSlash(*m_pTokSeq));
    return staysHere ? m_pTokSeq->DupToken() : m_pTokSeq->TakeToken();
}

/// Skips the command's name and gives the slash that begins the first subcommand, one of its own
/// making when the text has none.
int TbTrTablesCommand::DoStartUp(ZELKToken*& token) {
    if (m_pTokSeq == nullptr || !m_pTokSeq->Next()) {
        return 0;
    }
    m_lastLocation = {m_pTokSeq->LineNumber(), m_pTokSeq->Column(), m_pTokSeq->LineNumber(),
                      m_pTokSeq->Column()};
    if (!AdvanceToNextSignificantToken()) {
        return 0;
    }
    CheckForBreak();
    if (m_pTokSeq->Type() == Base::kAtEnd) {
        return 0;
    }
    if (IsSlash(*m_pTokSeq)) {
        token = GiveToken();
    } else {
        token = new ZELKOperatorToken(PaddedText(slash), m_pTokSeq->LineNumber(),
                                      m_pTokSeq->Column(), Base::kSlash);
        m_pTokSeq->Seek(m_pTokSeq->Tell());
    }
    m_position = 1;
    m_parenthesisDepth = 0;
    return SP_SLASH;
}

/// Equals signs and commas never reach the grammar.
bool TbTrTablesCommand::AdvanceToNextSignificantToken() {
    ZELK_ASSERT_AS(m_pTokSeq != nullptr, "m_pTokSeq");
    while (m_pTokSeq->Next()) {
        const Base::OperatorCode code = m_pTokSeq->Operator();
        if (code != Base::kEquals && code != Base::kComma) {
            return true;
        }
    }
    return false;
}

/// Moves to the next token of the command as the grammar is to see it: the arguments of BREAK are
/// read again at the end of each TABLE subcommand behind it.
bool TbTrTablesCommand::AdvanceAndHandleBreak() {
    const bool advanced = AdvanceToNextSignificantToken();
    if (advanced && !IsSlash(*m_pTokSeq)) {
        return true;
    }
    if (m_resumePosition == 0 && m_subcommand == TB_TABLE && m_breakPosition != 0) {
        m_resumePosition = m_pTokSeq->Tell();
        m_pTokSeq->Seek(m_breakPosition);
        return m_pTokSeq->Next();
    }
    if (m_resumePosition != 0) {
        m_pTokSeq->Seek(std::exchange(m_resumePosition, 0));
        m_pTokSeq->Next();
    }
    CheckForBreak();
    return m_pTokSeq->Type() != Base::kAtEnd;
}

/// Takes a BREAK subcommand out of the command when the current token begins one, and notes where
/// its arguments are; stands at the slash or the end behind it then. Of several BREAKs in a row
/// all are taken, and the last one that has arguments counts.
void TbTrTablesCommand::CheckForBreak() {
    for (;;) {
        const bool atSlash = IsSlash(*m_pTokSeq);
        const unsigned slashToken = atSlash ? m_pTokSeq->Tell() : 0;
        if (atSlash) {
            AdvanceToNextSignificantToken();
        }
        if (TablesKeyword(*m_pTokSeq) != TB_BREAK) {
            if (atSlash) {
                ZELK_ASSERT(slashToken != 0);
                m_pTokSeq->Seek(slashToken);
                m_pTokSeq->Next();
            }
            return;
        }
        if (AdvanceToNextSignificantToken() && !IsSlash(*m_pTokSeq)) {
            m_breakPosition = m_pTokSeq->Tell();
            SkipToNextSubcommandImpl();
        }
        if (!IsSlash(*m_pTokSeq)) {
            return;
        }
    }
}

/// Moves to the next slash; false when the end comes first.
bool TbTrTablesCommand::SkipToNextSubcommandImpl() {
    while (AdvanceToNextSignificantToken()) {
        if (IsSlash(*m_pTokSeq)) {
            return true;
        }
    }
    return false;
}

int TbTrTablesCommand::ClassifyCurrentToken() const {
    const Base::TokenType type = m_pTokSeq->Type();
    const Base::OperatorCode code = m_pTokSeq->Operator();
    switch (type) {
    case Base::kString:
        return code == Base::kNotOperator ? ClassifyStringToken() : CodeOfOperatorWord(code);
    case Base::kNumber:
        return SP_NUMBER;
    case Base::kLiteral:
        return SP_SLITERAL;
    default:
        ZELK_ASSERT(type == Base::kOperator);
        return CodeOfOperatorSymbol(code);
    }
}

/// A word is a subcommand's name, a keyword, a variable name or some other word, by its place.
int TbTrTablesCommand::ClassifyStringToken() const {
    ZELK_ASSERT(m_pTokSeq->Type() == TokenSequenceBase::kString);
    ZELK_ASSERT(m_pTokSeq->Operator() == TokenSequenceBase::kNotOperator);
    ZELK_ASSERT(m_position > 0);
    const int keyword = KeywordReadHere();
    if (keyword != 0) {
        return keyword == TB_MISSING && m_position == 1 ? static_cast<int>(TB_MISSINGSUBCOM)
                                                        : keyword;
    }
    if (m_position == 1) {
        return TB_UNKNOWNSUBCOM;
    }
    return m_pTokSeq->VarNameCategory() != 0 ? SP_VARNAME : SP_NONVARNAME;
}

/// The current word's keyword where keywords are read; 0 where the word is a name whatever it is.
int TbTrTablesCommand::KeywordReadHere() const {
    if (m_position == 1) {
        return TablesKeyword(*m_pTokSeq);
    }
    switch (m_subcommand) {
    case TB_AUTOLABEL:
    case TB_BASE:
    case TB_GBASE:
    case TB_MISSINGSUBCOM:
    case TB_FORMAT:
        return TablesKeyword(*m_pTokSeq);
    case TB_SORT: {
        const int keyword = m_position == 2 ? TablesKeyword(*m_pTokSeq) : 0;
        return keyword == TB_ASCENDING || keyword == TB_DESCENDING ? keyword : 0;
    }
    case TB_STATISTICS: {
        const int keyword = m_parenthesisDepth == 0 ? TablesKeyword(*m_pTokSeq) : 0;
        return keyword == TB_UNWEIGHTED ? keyword : 0;
    }
    default:
        return 0;
    }
}

/// Makes one token of a sign and the number behind it, or leaves the sign a token of its own.
ZELKToken* TbTrTablesCommand::FoldSign(int& code) {
    if (m_pTokSeq->TypeOfNext() != Base::kNumber) {
        if (code == kMinusSign) {
            code = SP_OTHEROP;
        }
        return GiveToken();
    }
    const std::unique_ptr<ZELKToken> sign(GiveToken());
    m_pTokSeq->Next();
    const std::unique_ptr<ZELKToken> number(GiveToken());
    const bool negative = code == kMinusSign;
    code = SP_NUMBER;
    return MakeSignedNumber(*sign, *number, negative);
}

/// Notes which subcommand the token belongs to. Behind an obsolete or unknown subcommand's name
/// every code becomes the one that the grammar swallows.
void TbTrTablesCommand::UpdateSubcommandState(int& code) {
    if (code == SP_SLASH) {
        m_position = 1;
        m_subcommand = 0;
        m_parenthesisDepth = 0;
        return;
    }
    if (m_position == 1) {
        m_subcommand = code;
    } else if (m_subcommand >= TB_UNKNOWNSUBCOM && m_subcommand <= TB_WRITE) {
        code = TB_ANYSUBCOMTOKEN;
    }
    ++m_position;
    if (code == SP_LPAREN) {
        ++m_parenthesisDepth;
    } else if (code == SP_RPAREN) {
        --m_parenthesisDepth;
    }
}

void TbTrTablesCommand::SetParseTree(TbTrParseNode* tree) {
    m_parseTree.reset(tree);
}

void TbTrTablesCommand::SetParseError(const yyltype& location, int code, ErrorType type) {
    m_errorType = type;
    m_errorCode = code;
    m_errorLocation = location;
}

void TbTrTablesCommand::SetParseErrorString(const std::string& text) {
    m_errorString = text;
}

TbTrTablesCommand::ErrorType TbTrTablesCommand::GetParseErrorInfo(int& line, int& column, int& code,
                                                                  std::string& text) const {
    line = m_errorLocation.first_line;
    column = m_errorLocation.first_column;
    code = m_errorCode;
    text = m_errorString;
    return m_errorType;
}

void TbTrTablesCommand::AddWarning(const std::string& text) {
    m_warnings.push_back(text);
}

std::string TbTrTablesCommand::GetLastWarning() const {
    return m_warnings.empty() ? std::string() : m_warnings.back();
}

} // namespace recastor
