#include "ctables/recastor/tbtrnodetypes.h"
#include "tests/support/dump.h"

#include <gtest/gtest.h>

namespace recastor {

namespace {

TEST(TbTrNodeType, NumbersOfTheTerminalsAreFixed) {
    struct Row {
        int number;
        TbTrNodeType type;
        const char* name;
    };
#define ROW(number, name)                                                                          \
    Row {                                                                                          \
        number, name, #name                                                                        \
    }
    const Row rows[] = {
        ROW(257, SP_SLITERAL),      ROW(258, SP_NUMBER),      ROW(259, SP_NONVARNAME),
        ROW(260, SP_VARNAME),       ROW(261, SP_PLUS),        ROW(262, SP_GREATERTHAN),
        ROW(263, SP_SLASH),         ROW(264, SP_COLON),       ROW(265, SP_LPAREN),
        ROW(266, SP_RPAREN),        ROW(267, SP_BY),          ROW(268, SP_TO),
        ROW(269, TB_BREAK),         ROW(270, TB_LABELS),      ROW(271, SP_OTHEROP),
        ROW(272, TB_UNWEIGHTED),    ROW(273, TB_AUTOLABEL),   ROW(274, TB_BASE),
        ROW(275, TB_GBASE),         ROW(276, TB_MISSING),     ROW(277, TB_MISSINGSUBCOM),
        ROW(278, TB_DEFAULT),       ROW(279, TB_ON),          ROW(280, TB_OFF),
        ROW(281, TB_ANSWERING),     ROW(282, TB_QUALIFIED),   ROW(283, SP_ALL),
        ROW(284, TB_CASES),         ROW(285, TB_RESPONSES),   ROW(286, TB_INCLUDE),
        ROW(287, TB_EXCLUDE),       ROW(288, TB_BLANK),       ROW(289, TB_ZERO),
        ROW(290, TB_FORMAT),        ROW(291, TB_FTOTAL),      ROW(292, TB_PTOTAL),
        ROW(293, TB_MRGROUP),       ROW(294, TB_MDGROUP),     ROW(295, TB_SORT),
        ROW(296, TB_ASCENDING),     ROW(297, TB_DESCENDING),  ROW(298, TB_CAPTION),
        ROW(299, TB_TITLE),         ROW(300, TB_CORNER),      ROW(301, TB_STATISTICS),
        ROW(302, TB_TABLE),         ROW(303, TB_OBSERVATION), ROW(304, TB_UNKNOWNSUBCOM),
        ROW(305, TB_BOXCHARS),      ROW(306, TB_CONTINUED),   ROW(307, TB_FONTCHARS),
        ROW(308, TB_FOOTNOTE),      ROW(309, TB_INDEX),       ROW(310, TB_PFOOTNOTE),
        ROW(311, TB_PTITLE),        ROW(312, TB_TFOOTNOTE),   ROW(313, TB_WRITE),
        ROW(314, TB_ANYSUBCOMTOKEN)};
#undef ROW
    for (const auto& [number, type, name] : rows) {
        EXPECT_EQ(type, number) << name;
        EXPECT_EQ(CodeName(number), name);
    }
}

TEST(TbTrNodeType, NumbersOfTheInternalTypesAreFixed) {
    EXPECT_EQ(TBI_VARLIST, 501);
    EXPECT_EQ(TBI_VARRANGE, 502);
    EXPECT_EQ(TBI_SORTFUNCTION, 503);
    EXPECT_EQ(TBI_SORTVAR, 504);
    EXPECT_EQ(TBI_GENERICLIST, 505);
    EXPECT_EQ(TBI_STATFUNCTION, 506);
    EXPECT_EQ(TBI_FULLSTATFUNCTION, 507);
    EXPECT_EQ(TBI_STATFUNCARG, 508);
    EXPECT_EQ(TBI_FMT, 509);
    EXPECT_EQ(TBI_FTOTALVAR, 511);
    EXPECT_EQ(TBI_PTOTALVAR, 512);
}

} // namespace

} // namespace recastor
