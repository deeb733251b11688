#include "presentationelementscfgimpl.h"

#include "nodekinds.h"

#include <memory>
#include <new>

#include "kazparser/IUseFixedPresentationElementCfg.h"
#include "kazparser/KAZConfigFactory.h"

namespace kaz::kazparser {
namespace {

template <class T>
using Owned = std::unique_ptr<T>;

// Gives `target` every attribute that the two kinds of reference share.
void copyAttributes(const IUsePresentationElementCfg& source, IUsePresentationElementCfg& target) {
    target.setActive(source.isActive());
    target.setDesc(source.getDesc());
    target.setLabel(source.getLabel());
    target.setDisplayDesc(source.getDisplayDesc());
    target.setDescStringID(source.getDescStringID());
    target.setElemID(source.getElemID());
    target.setDisplayLabel(source.getDisplayLabel());
    target.setLabelStringID(source.getLabelStringID());
    target.setRefMainData(source.getRefMainData());
}

}  // namespace

const std::wstring& PresentationElementsCfgImpl::getName() const {
    return kinds::tag(INodeCfg::PresentationElements);
}

// Each entry is replaced only once its fixed reference is complete, so an
// error leaves that entry as it was and the list owning every node.
unsigned int PresentationElementsCfgImpl::resolveReferences() {
    const unsigned int count = getCount();
    for (unsigned int index = 0; index < count; ++index) {
        if (items()[index]->getNodeType() != UseRefPresentationElement) continue;
        const auto* reference = dynamic_cast<const IUseRefPresentationElementCfg*>(items()[index]);
        if (reference == nullptr) continue;
        if (IUsePresentationElementCfg* fixed = resolved(*reference)) {
            // The new entry keeps the list's parent as its own, as it was made.
            INodeCfg* parent = fixed->getParent();
            setItem(fixed, index);
            fixed->setParent(parent);
        }
    }
    return count;
}

IUsePresentationElementCfg* PresentationElementsCfgImpl::resolved(
    const IUseRefPresentationElementCfg& reference) const {
    const std::wstring fileName = reference.getRefFileName();
    Owned<IUsePresentationElementCfg> made(KAZConfigFactory::createUseFixedPresentationElementCfg(
        static_cast<const std::wstring*>(nullptr), getParent()));
    if (made == nullptr) throw std::bad_alloc();  // how the empty form says memory ran out
    auto* fixed = dynamic_cast<IUseFixedPresentationElementCfg*>(made.get());
    if (fixed == nullptr) return nullptr;
    Owned<IPresentationElementCfg> element(
        KAZConfigFactory::createPresentationElementCfg(fileName, fixed));
    if (element == nullptr) return nullptr;
    fixed->setPresentationElement(element.release());
    copyAttributes(reference, *fixed);
    // It stands where the reference stood; its element answers places in the file.
    if (const auto where = sourceLocation(&reference))
        dynamic_cast<Located&>(*fixed).locate(*where);
    if (const IExtParamsCfg* extParams = reference.getExtParams()) {
        Owned<INodeCfg> copy(extParams->clone());
        if (auto* typed = dynamic_cast<IExtParamsCfg*>(copy.get())) {
            fixed->setExtParams(typed);
            copy.release();
        }
    }
    return made.release();
}

}  // namespace kaz::kazparser
