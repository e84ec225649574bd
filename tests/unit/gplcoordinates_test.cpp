#include "tests/unit/gpl_rows.h"

namespace recastor {

TEST(GplCoordinates, APlainChartHasNoLine) {
    ExpectLines("COORD", {
                             {"/X1=a /Y=b /BAR", {}},
                             {"/X1=a /Y=b /SCATTER /COORDINATE=VERTICAL", {}},
                             {"/X1=a /Y=b /PANEL=p q /BAR", {}},
                         });
}

TEST(GplCoordinates, WhatAppliesStandsInItsOrder) {
    ExpectLines(
        "COORD",
        {
            {"/X1=a /Y=b /COLOR=c /BAR", {"rect(dim(1,2), cluster(3,0))"}},
            {"/X1=a /Y=b /COORDINATE=HORIZONTAL /BAR", {"rect(dim(1,2), transpose())"}},
            {"/X1=a /Y=b /PANEL=p /BAR", {"rect(dim(1,2), wrap())"}},
            {"/X1=a /Y=b /COORDINATE=HORIZONTAL /PANEL=p q /BAR", {"rect(dim(1,2), transpose())"}},
            {"/X1=a /Y=b /COLOR=c /PANEL=p q /BAR", {"rect(dim(1,2), cluster(3,0))"}},
            {"/X1=a /Y=b /COLOR=c /PANEL=p /COORDINATE=HORIZONTAL /BAR",
             {"rect(dim(1,2), cluster(3,0), transpose(), wrap())"}},
        });
}

TEST(GplCoordinates, BarsBoxesAndErrorBarsAreClusteredByTheirFirstCategories) {
    const std::vector<std::string> cluster = {"rect(dim(1,2), cluster(3,0))"};
    ExpectLines("COORD", {
                             {"/X1=a /Y=b /COLOR=c CLUSTER /BAR", cluster},
                             {"/X1=a /Y=b /STYLE=c /BAR", cluster},
                             {"/X1=a /Y=b /COLOR=c TYPE=SCALE /STYLE=d /BAR", cluster},
                             {"/X1=a /Y=b /COLOR=c STACK /STYLE=d /BAR", cluster},
                             {"/X1=a /Y=b /COLOR=c /BOX", cluster},
                             {"/X1=a /Y=b /COLOR=c /ERRORBAR", cluster},
                             {"/X1=a /Y=b /COLOR=c /BAR /BOX /ERRORBAR", cluster},
                             {"/Y=b /COLOR=c /BAR", cluster},
                             {"/X1=a /Y=b /COLOR=c STACK /BOX", cluster}, // boxes do not stack
                         });
}

TEST(GplCoordinates, WhatIsNotClustered) {
    ExpectLines("COORD", {
                             {"/X1=a /Y=b /COLOR=c STACK /BAR", {}},
                             {"/X1=a /Y=b /COLOR=c STACK /STYLE=d STACK /BAR", {}},
                             {"/X1=a /Y=b /COLOR=$count /BAR", {}},
                             {"/X1=a TYPE=SCALE /Y=b /COLOR=c /BAR", {}},
                             {"/X1=a /Y=b /COLOR=c /LINE", {}},
                             {"/X1=a /Y=b /COLOR=c /AREA", {}},
                             {"/X1=a /Y=b /COLOR=c /SCATTER", {}},
                             {"/X1=a /Y=b /COLOR=c /ERRORBAR /LINE", {}},
                             {"/X1=a /Y=b /SIZE=c TYPE=CATEGORICAL /BAR", {}},
                         });
}

TEST(GplCoordinates, ThreeDimensionsAreNamed) {
    ExpectLines("COORD", {
                             {"/X1=a /X2=b /Y=c /COORDINATE=THREE /SCATTER", {"rect(dim(1,2,3))"}},
                             {"/X1=a /X2=b /Y=c /COORDINATE=THREE /BAR", {"rect(dim(1,2,3))"}},
                         });
}

TEST(GplCoordinates, APieTurnsAndItsPanelsAreDimensions) {
    ExpectLines(
        "COORD",
        {
            {"/COLOR=c /PIE", {"polar.theta(startAngle(0))"}},
            {"/COLOR=c /PIE START=90", {"polar.theta(startAngle(90))"}},
            {"/COLOR=c /COORDINATE=HORIZONTAL /PIE", {"polar.theta(startAngle(0))"}},
            {"/COLOR=c /PANEL=p /PIE START=45",
             {"rect(dim(2), polar.theta(dim(1), startAngle(45)))"}},
            {"/COLOR=c /PANEL=p q /PIE", {"rect(dim(2,3), polar.theta(dim(1), startAngle(0)))"}},
        });
}

TEST(GplCoordinates, AnAngleLiesWithinOneTurn) {
    ExpectLines("COORD", {
                             {"/COLOR=c /PIE START=359.5", {"polar.theta(startAngle(359.5))"}},
                             {"/COLOR=c /PIE START=360", {"polar.theta(startAngle(0))"}},
                             {"/COLOR=c /PIE START=450", {"polar.theta(startAngle(90))"}},
                             {"/COLOR=c /PIE START=-90", {"polar.theta(startAngle(270))"}},
                             {"/COLOR=c /PIE START=-360", {"polar.theta(startAngle(0))"}},
                             {"/COLOR=c /PIE START=-725", {"polar.theta(startAngle(355))"}},
                             {"/COLOR=c /PIE START=-1E-30", {"polar.theta(startAngle(0))"}},
                         });
}

} // namespace recastor
