#include "platform/zelkwigr/dopostprocessing.h"

#include "platform/zelkwigr/gpllines.h"

namespace recastor {

doPostProcessing::doPostProcessing(XDocument* /*document*/, FacSTDictionary* /*dictionary*/,
                                   const ZELK_DataSource* /*data*/) {}

void doPostProcessing::process(const iGraphSpec& spec) {
    m_templates.clear();
    if (WrapsPanels(spec.Facts())) {
        m_templates.emplace_back("<setWrapPanels/>");
    }
}

} // namespace recastor
