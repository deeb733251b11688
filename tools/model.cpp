#include "model.h"

#include <memory>

#include "load.h"

namespace kazcfg {

using namespace kaz::kazparser;

GenericRead readGeneric(const std::wstring& text) {
    try {
        return {std::unique_ptr<IXNodeCfg>(KAZConfigFactory::createXNodeCfg(&text, nullptr)), L""};
    } catch (kazexception::IKAZException* e) {
        std::wstring reason = innermostMessage(*e);
        e->release();
        // "Syntax error at :'line 1, column 5: <message>'" says <message>.
        const auto colon = reason.find(L": ", reason.find(L"column "));
        if (colon != reason.npos) reason = reason.substr(colon + 2);
        if (!reason.empty() && reason.back() == L'\'') reason.pop_back();
        return {nullptr, reason};
    }
}

namespace {

Attributes attributesOf(const IXNodeCfg& node) {
    Attributes attributes;
    for (unsigned i = 0; i < node.getAttributeCount(); ++i)
        attributes.emplace_back(node.getAttributeName(i), node.getAttribute(i));
    return attributes;
}

std::vector<Element> genericChildren(const IXNodeCfg& node) {
    std::vector<Element> children;
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (const auto* child = dynamic_cast<const IXNodeCfg*>(node.getChild(i)))
            children.push_back(genericModel(*child));
    return children;
}

// Written contents of typed leaves have no place of their own in the file:
// they take the place of the node that holds them.
void placeAll(std::vector<Element>& elements, const std::optional<SourceLocation>& where) {
    for (Element& element : elements) {
        element.where = where;
        placeAll(element.children, where);
    }
}

bool fixesItsTag(const INodeCfg& node) {
    // These kinds answer their "name" attribute as getName().
    return dynamic_cast<const IPresentationElementCfg*>(&node) != nullptr ||
           dynamic_cast<const IPresentationGroupCfg*>(&node) != nullptr;
}

}  // namespace

Element genericModel(const IXNodeCfg& node) {
    Element element{.tag = node.getName(),
                    .label = L"<" + node.getName() + L">",
                    .key = node.getName(),
                    .attributes = attributesOf(node),
                    .text = node.getText(),
                    .where = sourceLocation(&node),
                    .children = {}};
    element.children = genericChildren(node);
    return element;
}

Element typedModel(const INodeCfg& node) {
    const std::wstring written = node.toXml();
    const std::wstring kind(kindName(node.getNodeType()));
    Element element{.tag = fixesItsTag(node) ? kind : node.getName(),
                    .label = describeNode(node),
                    .key = kind + L'\n' + node.getName(),
                    .attributes = {},
                    .text = {},
                    .where = sourceLocation(&node),
                    .children = {}};
    for (const auto& [name, value] : identifyingAttributes(node)) element.key += L'\n' + value;
    if (const GenericRead own = readGeneric(written); own.root != nullptr) {
        element.tag = own.root->getName();
        element.attributes = attributesOf(*own.root);
        element.text = own.root->getText();
        if (node.getChildCount() == 0) {
            element.children = genericChildren(*own.root);
            placeAll(element.children, element.where);
        }
    } else {
        element.text = written;  // it does not read back: compare what it writes
    }
    for (unsigned i = 0; i < node.getChildCount(); ++i)
        if (const INodeCfg* child = node.getChild(i))
            element.children.push_back(typedModel(*child));
    return element;
}

Attributes identifyingAttributes(const INodeCfg& node) {
    if (fixesItsTag(node)) return {{L"name", node.getName()}};
    if (const auto* set = dynamic_cast<const IParamSetCfg*>(&node))
        return {{L"name", set->getParamSetName()}};
    if (const auto* file = dynamic_cast<const IUseRefPresentationElementCfg*>(&node))
        return {{L"elemID", file->getElemID()}, {L"refFileName", file->getRefFileName()}};
    if (const auto* use = dynamic_cast<const IUsePresentationElementCfg*>(&node))
        return {{L"elemID", use->getElemID()}};
    if (const auto* plugIn = dynamic_cast<const IPlugInCfg*>(&node))
        return {{L"engineID", plugIn->getEngineID()}};
    if (const auto* sample = dynamic_cast<const ISampleResultCfg*>(&node))
        return {{L"name", sample->getSampleName()}};
    // A parameter's name is its tag.
    const auto* value = dynamic_cast<const IExtParamCfg*>(&node);
    if (value != nullptr && dynamic_cast<const IParamCfg*>(&node) == nullptr)
        return {{L"name", value->getParamName()}};
    return {};
}

std::wstring describeNode(const INodeCfg& node) {
    std::wstring text(kindName(node.getNodeType()));
    if (!fixesItsTag(node) && node.getName() != text) text += L' ' + node.getName();
    for (const auto& [name, value] : identifyingAttributes(node))
        text += L' ' + name + L"=\"" + value + L'"';
    return text;
}

}  // namespace kazcfg
