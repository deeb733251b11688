#include "usedatacollectorcfgimpl.h"

#include "nodekinds.h"
#include "xmltags.h"

namespace kaz::kazparser {

const std::wstring& UseDataCollectorCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseDataCollector);
}

bool UseDataCollectorCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName());
}

}  // namespace kaz::kazparser
