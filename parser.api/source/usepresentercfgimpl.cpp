#include "usepresentercfgimpl.h"

#include "nodekinds.h"
#include "xmltags.h"

namespace kaz::kazparser {

const std::wstring& UsePresenterCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UsePresenter);
}

bool UsePresenterCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName());
}

}  // namespace kaz::kazparser
