// FORMAT and the headings TITLE, CAPTION and CORNER.

#include "ctables/recastor/outputsequence.h"
#include "ctables/recastor/parsetree.h"
#include "ctables/recastor/parsetree_lookup.h"
#include "platform/zelkbase/zelkassert.h"

namespace recastor {

namespace {

/// What the last FORMAT subcommand says: the last choice and the last text of it.
struct FormatSettings {
    int emptyCells = TB_BLANK;
    const TbTrParseNode* missingText = nullptr;
};

FormatSettings ReadFormat(const TbTrParseNode& format) {
    FormatSettings settings;
    for (unsigned i = 0; i < format.GetChildCount(); ++i) {
        const TbTrParseNode* const setting = format.GetChild(i);
        ZELK_ASSERT(setting != nullptr);
        const int type = setting->GetNodeType();
        ZELK_ASSERT(type == TB_ZERO || type == TB_BLANK || type == SP_SLITERAL);
        if (type == SP_SLITERAL) {
            settings.missingText = setting;
        } else {
            settings.emptyCells = type;
        }
    }
    return settings;
}

const TbTrParseNode* LastFormat(const TbTrParseNode& root) {
    const TbTrParseNode* const list = GlobalSubcommands(root);
    for (unsigned i = list != nullptr ? list->GetChildCount() : 0; i-- > 0;) {
        const TbTrParseNode* const subcommand = list->GetChild(i);
        if (subcommand != nullptr && subcommand->GetNodeType() == TB_FORMAT) {
            return subcommand;
        }
    }
    return nullptr;
}

/// Appends the texts of a heading; the first stands behind the keyword, and behind the name of the
/// subcommand when the line is still empty.
void ExpressHeading(const TbTrParseNode* heading, const char* subcommand, const char* keyword,
                    OutputSequence& output) {
    bool first = true;
    for (unsigned i = 0; heading != nullptr && i < heading->GetChildCount(); ++i) {
        const TbTrParseNode* const text = heading->GetChild(i);
        if (text == nullptr) {
            continue;
        }
        if (first) {
            if (output.IsEmpty()) {
                output.PushBack(subcommand, false);
            }
            output.PushBack(keyword, false);
        }
        output.PushBack(TokenOf(*text).AsString(true), !first);
        first = false;
    }
}

/// The title's name and keyword are one piece, which is never broken.
void ExpressTitle(const TbTrParseNode& title, OutputSequence& output) {
    for (unsigned i = 0; i < title.GetChildCount(); ++i) {
        const TbTrParseNode* const text = title.GetChild(i);
        if (text == nullptr) {
            continue;
        }
        const bool first = output.IsEmpty();
        if (first) {
            output.PushBack("/TITLES TITLE=", false);
        }
        output.PushBack(TokenOf(*text).AsString(true), !first);
    }
}

} // namespace

bool ParseTree::TranslateFormat(const TbTrParseNode& root, OutputSequence& output) {
    output.Clear();
    ZELK_ASSERT(root.GetNodeType() == TBI_GENERICLIST && root.GetChildCount() > 0);
    const TbTrParseNode* const format = LastFormat(root);
    const FormatSettings settings = format != nullptr ? ReadFormat(*format) : FormatSettings();
    output.PushBack("/FORMAT EMPTY=", false);
    output.PushBack(settings.emptyCells == TB_ZERO ? "ZERO" : "BLANK", false);
    if (settings.missingText != nullptr) {
        output.PushBack(" MISSING=", false);
        output.PushBack(TokenOf(*settings.missingText).AsString(true), false);
    }
    return true;
}

bool ParseTree::TranslateHeadings(const TbTrParseNode& table, OutputSequence& output) {
    output.Clear();
    const TbTrParseNode* const title = FindSubcommand(table, TB_TITLE, true);
    if (title != nullptr) {
        ExpressTitle(*title, output);
    } else if (GetGlobalAttribute(TB_AUTOLABEL, table) == TB_ON) {
        output.PushBack("/TITLES TITLE=')TABLE'", false);
    }
    ExpressHeading(FindSubcommand(table, TB_CAPTION, true), "/TITLES", " CAPTION=", output);
    // Without an S when nothing stands before it.
    ExpressHeading(FindSubcommand(table, TB_CORNER, true), "/TITLE", " CORNER=", output);
    return true;
}

} // namespace recastor
