#include "presentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& PresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::PresentationElement);
}

PresentationElementCfgImpl::PresentationElementCfgImpl(const PresentationElementCfgImpl& other)
    : PresentationNode(other) {
    input_.cloneFrom(other.input_, this);
    output_.cloneFrom(other.output_, this);
}

std::array<INodeCfg*, 4> PresentationElementCfgImpl::childSlots() const {
    return {features_.get(), extraValues_.get(), input_.get(), output_.get()};
}

bool PresentationElementCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, startTag().str(), tag());
}

void PresentationElementCfgImpl::deleteChildren() {
    deleteSharedChildren();
    input_.reset();
    output_.reset();
}

bool PresentationElementCfgImpl::setChild(INodeCfg* child) {
    required(child, L"setChild");
    if (setSharedChild(child)) return true;
    switch (child->getNodeType()) {
        case InputConfig:
            setInputConfig(dynamic_cast<IInputConfigCfg*>(child));
            return true;
        case OutputConfig:
            setOutputConfig(dynamic_cast<IOutputConfigCfg*>(child));
            return true;
        default:
            return false;
    }
}

void PresentationElementCfgImpl::setInputConfig(IInputConfigCfg* input) {
    input_.set(required(input, L"setInputConfig"), this);
}

void PresentationElementCfgImpl::setOutputConfig(IOutputConfigCfg* output) {
    output_.set(required(output, L"setOutputConfig"), this);
}

IInputConfigCfg* PresentationElementCfgImpl::replaceInputConfig(IInputConfigCfg* input) {
    return input_.replace(required(input, L"replaceInputConfig"), this);
}

IOutputConfigCfg* PresentationElementCfgImpl::replaceOutputConfig(IOutputConfigCfg* output) {
    return output_.replace(required(output, L"replaceOutputConfig"), this);
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
