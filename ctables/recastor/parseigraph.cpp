#include "ctables/recastor/parseigraph.h"

#include "ctables/recastor/ggraphcommand.h"
#include "ctables/recastor/messages.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkwigr/dopostprocessing.h"
#include "platform/zelkwigr/gplgenerator.h"
#include "platform/zelkwigr/parser.h"

#include <iostream>
#include <memory>
#include <utility>

namespace recastor {

namespace {

/// What stands in the place of a command: its new form, or a comment that says why there is none.
struct NewForm {
    bool isConverted;
    std::string text;
};

/// The services are given no data, dictionary or document: they work on syntax alone.
NewForm ConvertGraph(TokenSequenceBase& tokens, ConversionListener& listener) {
    parser chartParser(nullptr, nullptr);
    if (!chartParser.Parse(tokens) || !chartParser.CompleteAndValidateSyntax()) {
        return {false, IDS_STRING_IGRAPH_ERROR};
    }
    iGraphSpec& spec = *chartParser.GetSettings();
    listener.OnChart(spec);
    LabelOutput(spec);
    std::string gpl = gplGenerator(spec, nullptr, nullptr).getGPL();
    if (!spec.errorMessage().empty()) {
        return {false, spec.errorMessage()};
    }
    doPostProcessing postProcessing(nullptr, nullptr, nullptr);
    postProcessing.process(spec);
    return {true, GGraphCommand({spec.getViewName(), spec.getUsedVarName(), spec.getChartLooks(),
                                 postProcessing.getImmediateTemplates(), std::move(gpl)})};
}

} // namespace

void ParseIgraph(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t /*lineOffset*/,
                 ConversionListener& listener) {
    const std::unique_ptr<ZELKTokenSequence> owner(tokens);
    const NewForm form = ConvertGraph(*tokens, listener);
    if (form.isConverted) {
        listener.OnConverted(form.text, {});
    } else {
        listener.OnNotConverted({0, 0, form.text});
    }
    output << IDS_STRING_BEGIN_GGRAPH_COMMAND << '\n';
    PrintCommand(form.text, output, 0);
    output << IDS_STRING_END_GGRAPH_COMMAND << '\n';
    std::cout << (form.isConverted ? IDS_CONVERSION_IGRAPH_SUCCEED : IDS_CONVERSION_IGRAPH_FAIL);
}

void LabelOutput(iGraphSpec& spec) {
    const std::string& viewName = spec.getViewName();
    spec.getGGraphSpec()->SetOutputLabel(viewName.empty() ? "Interactive Graph" : viewName);
}

} // namespace recastor
