// GUIDE.

#include "platform/zelkwigr/chartlabels.h"
#include "platform/zelkwigr/gplaesthetics.h"
#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

#include <string_view>

namespace recastor {

namespace {

std::string DimensionTitle(const ChartDimension& dimension) {
    return dimension.title.empty() ? GplString(VariableLabel(dimension.variable))
                                   : GplString(dimension.title);
}

std::string MeasureTitle(const ChartFacts& facts) {
    return facts.y->title.empty() ? GplString(MeasureLabel(facts)) : GplString(facts.y->title);
}

/// `title` is a string, `place` what follows the title with its comma.
void AppendAxis(int dimension, std::string_view title, const char* place, std::string& text) {
    AppendGplLine(text, "GUIDE",
                  {"axis(dim(", std::to_string(dimension), "), label(", title, ")", place, ")"});
}

void AppendAxes(const ChartFacts& facts, std::string& text) {
    const DimensionNumbers& dimensions = facts.dimensions;
    if (facts.form == ChartForm::kPie) {
        AppendGplLine(text, "GUIDE",
                      {"axis(dim(", std::to_string(dimensions.measure), "), null())"});
    } else {
        if (facts.chart.x1) {
            AppendAxis(dimensions.x1, DimensionTitle(*facts.chart.x1), "", text);
        }
        if (facts.chart.x2) {
            AppendAxis(dimensions.x2, DimensionTitle(*facts.chart.x2), "", text);
        }
        AppendAxis(dimensions.measure, MeasureTitle(facts), "", text);
    }
    int panelDimension = dimensions.firstPanel;
    for (const ChartVariable& panel : facts.chart.panels) {
        AppendAxis(panelDimension, GplString(VariableLabel(panel)), ", opposite()", text);
        ++panelDimension;
    }
}

void AppendLegends(const ChartFacts& facts, std::string& text) {
    for (const ShownAesthetic& shown : ShownAesthetics(facts)) {
        const ChartDimension& dimension = *shown.dimension;
        if (dimension.legend) {
            AppendGplLine(
                text, "GUIDE",
                {"legend(aesthetic(", shown.name, "), label(", DimensionTitle(dimension), "))"});
        } else {
            AppendGplLine(text, "GUIDE", {"legend(aesthetic(", shown.name, "), null())"});
        }
    }
}

void AppendTexts(const ChartModel& chart, std::string& text) {
    const struct {
        const char* guide;
        const std::vector<std::string>& lines;
    } rows[] = {
        {"text.title", chart.title},
        {"text.subtitle", chart.subtitle},
        {"text.footnote", chart.caption},
    };
    for (const auto& row : rows) {
        const std::string string = GplString(row.lines);
        if (string != "\"\"") {
            AppendGplLine(text, "GUIDE", {row.guide, "(label(", string, "))"});
        }
    }
}

/// The place of a reference line: on the scale that it names; empty when there is none.
std::string LinePosition(const ChartFacts& facts, const ReferenceLine& line) {
    const ChartDimension* const x1 = Find(facts.chart.x1);
    const std::string value = GplNumber(line.value);
    if (!IsCategorical(facts.y) && IsSameVariable(line.variable, facts.y->variable)) {
        return "position(*," + value + ')';
    }
    if (x1 != nullptr && !IsCategorical(x1) && IsSameVariable(line.variable, x1->variable)) {
        return "position(" + value + ",*)";
    }
    return {};
}

void AppendReferenceLines(const ChartFacts& facts, std::string& text) {
    if (facts.form == ChartForm::kPie || facts.form == ChartForm::kThree) {
        return;
    }
    for (const ReferenceLine& line : facts.chart.referenceLines) {
        const std::string position = LinePosition(facts, line);
        if (!position.empty()) {
            const std::string label =
                line.label ? GplCall("label", {GplString(GplNumber(line.value))}) : "";
            AppendGplLine(text, "GUIDE", {GplCall("form.line", {position, label})});
        }
    }
}

} // namespace

void AppendGuideLines(const GplChart& chart, std::string& text) {
    const ChartFacts& facts = chart.Facts();
    AppendAxes(facts, text);
    AppendLegends(facts, text);
    AppendTexts(facts.chart, text);
    AppendReferenceLines(facts, text);
}

} // namespace recastor
