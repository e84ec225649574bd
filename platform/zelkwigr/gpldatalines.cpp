// SOURCE, DATA and TRANS.

#include "platform/zelkwigr/gpllines.h"
#include "platform/zelkwigr/gpltext.h"

namespace recastor {

namespace {

void AppendDataLine(const std::string& gplName, const std::string& dataName, const char* unit,
                    std::string& text) {
    AppendGplLine(text, "DATA",
                  {gplName, "=col(source(s), name(", GplString(dataName), ")", unit, ")"});
}

} // namespace

void AppendDataLines(const GplChart& chart, std::string& text) {
    AppendGplLine(text, "SOURCE", {"s=userSource(id(\"iGraphDataset\"))"});
    for (const GplVariables::Entry& variable : chart.Variables().Entries()) {
        if (!variable.scaleName.empty()) {
            AppendDataLine(variable.scaleName, variable.dataName, "", text);
        }
        if (!variable.categoryName.empty()) {
            AppendDataLine(variable.categoryName, variable.dataName, ", unit.category()", text);
        }
    }
    for (const auto& [name, expression] : chart.Computed()) {
        AppendGplLine(text, "TRANS", {name, "=eval(", expression, ")"});
    }
}

} // namespace recastor
