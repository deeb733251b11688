#include "useexpressioncfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseExpressionCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseExpression);
}

// The whole element is handed over as one piece.
bool UseExpressionCfgImpl::writeXml(IXmlWriter& out) const {
    return writeAsOnePiece(
        out, [this](IXmlWriter& whole) { writeText(whole, expression_, Content::Escaped); });
}

bool UseExpressionCfgImpl::setChild(INodeCfg*) {
    errors::invalidData(L"Do not use this method", KAZ_HERE(kClassName, L"setChild"));
}

}  // namespace kaz::kazparser
