#include "usefixedpresentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseFixedPresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::UseFixedPresentationElement);
}

}  // namespace kaz::kazparser
