// GUIDE.

#include "platform/zelkwigr/chartlabels.h"
#include "platform/zelkwigr/gplaesthetics.h"
#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

#include <string>
#include <string_view>
#include <vector>

namespace recastor {

namespace {

using Lines = std::vector<std::string>;

/// The label of a title's lines, of `untitled` when there are none.
void AppendLabel(const Lines& title, std::string_view untitled, std::string& text) {
    text += "label(";
    if (title.empty()) {
        AppendGplString(untitled, text);
    } else {
        AppendGplString(title, text);
    }
    text += ')';
}

/// `place` is what follows the title, with its comma.
void AppendAxis(int dimension, const Lines& title, std::string_view untitled,
                std::string_view place, std::string& text) {
    BeginGplLine(text, "GUIDE", {"axis(dim(", std::to_string(dimension), "), "});
    AppendLabel(title, untitled, text);
    text += place;
    text += ")\n";
}

void AppendAxis(int dimension, const ChartDimension& axis, std::string& text) {
    AppendAxis(dimension, axis.title, VariableLabel(axis.variable), "", text);
}

void AppendAxes(const ChartFacts& facts, std::string& text) {
    const DimensionNumbers& dimensions = facts.dimensions;
    if (facts.form == ChartForm::kPie) {
        AppendGplLine(text, "GUIDE",
                      {"axis(dim(", std::to_string(dimensions.measure), "), null())"});
    } else {
        if (facts.chart.x1) {
            AppendAxis(dimensions.x1, *facts.chart.x1, text);
        }
        if (facts.chart.x2) {
            AppendAxis(dimensions.x2, *facts.chart.x2, text);
        }
        const Lines& title = facts.y->title;
        AppendAxis(dimensions.measure, title, title.empty() ? MeasureLabel(facts) : "", "", text);
    }
    int panelDimension = dimensions.firstPanel;
    for (const ChartVariable& panel : facts.chart.panels) {
        AppendAxis(panelDimension, {}, VariableLabel(panel), ", opposite()", text);
        ++panelDimension;
    }
}

void AppendLegends(const ChartFacts& facts, std::string& text) {
    for (const ShownAesthetic& shown : ShownAesthetics(facts)) {
        const ChartDimension& dimension = *shown.dimension;
        BeginGplLine(text, "GUIDE", {"legend(aesthetic(", shown.name, "), "});
        if (dimension.legend) {
            AppendLabel(dimension.title, VariableLabel(dimension.variable), text);
        } else {
            text += "null()";
        }
        text += ")\n";
    }
}

void AppendTexts(const ChartModel& chart, std::string& text) {
    const struct {
        const char* guide;
        const Lines& lines;
    } rows[] = {
        {"text.title", chart.title},
        {"text.subtitle", chart.subtitle},
        {"text.footnote", chart.caption},
    };
    for (const auto& row : rows) {
        const bool isBlank =
            row.lines.empty() || (row.lines.size() == 1 && row.lines.front().empty());
        if (!isBlank) {
            BeginGplLine(text, "GUIDE", {row.guide, "("});
            AppendLabel(row.lines, {}, text);
            text += ")\n";
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
