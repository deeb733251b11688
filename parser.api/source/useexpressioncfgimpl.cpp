#include "useexpressioncfgimpl.h"

#include "nodekinds.h"

#include "kazparser/XmlEscaping.h"

namespace kaz::kazparser {

const std::wstring& UseExpressionCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseExpression);
}

// The whole element is handed over as one piece.
bool UseExpressionCfgImpl::writeXml(IXmlWriter& out) const {
    std::wstring text = expression_;
    escapeText(text);
    return out.write(StartTag(getName()).str() + text + endTag(getName()));
}

bool UseExpressionCfgImpl::setChild(INodeCfg*) {
    errors::invalidData(L"Do not use this method", KAZ_HERE(kClassName, L"setChild"));
}

}  // namespace kaz::kazparser
