#include "presentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& PresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::PresentationElement);
}

bool PresentationElementCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, tag(), [this](StartTag& start) { addSharedAttributes(start); });
}

bool PresentationElementCfgImpl::setSchemaVersion(const std::wstring& version) {
    schemaVersion_ = version;
    return true;
}

// Unlike the group's, the element's name and description carry their
// display texts along.
void PresentationElementCfgImpl::setName(const std::wstring& name) {
    name_ = displayName_ = name;
}

void PresentationElementCfgImpl::setDesc(const std::wstring& desc) {
    desc_ = displayDesc_ = desc;
}

}  // namespace kaz::kazparser
