#include "kazparsercontenthandlerimpl.h"

#include <memory>
#include <type_traits>
#include <unordered_map>

#include "characterdata.h"
#include "datacollectorcfgimpl.h"
#include "datamodifiercfgimpl.h"
#include "environmentadapter/IEnvironmentAdapter.h"
#include "extparamcfgimpl.h"
#include "extparamscfgimpl.h"
#include "extravaluesconfigcfgimpl.h"
#include "featurecfgimpl.h"
#include "featurescfgimpl.h"
#include "inputconfigcfgimpl.h"
#include "kazparser/KAZConfigFactory.h"
#include "languagestringcfgimpl.h"
#include "nodeerrors.h"
#include "outputconfigcfgimpl.h"
#include "paramcfgimpl.h"
#include "paramsetcfgimpl.h"
#include "paramsetscfgimpl.h"
#include "presentationelementcfgimpl.h"
#include "presentationelementscfgimpl.h"
#include "presentationgroupcfgimpl.h"
#include "presentercfgimpl.h"
#include "samplefixedresultcfgimpl.h"
#include "samplerefresultcfgimpl.h"
#include "sampleresultscfgimpl.h"
#include "selecttablescfgimpl.h"
#include "tablereader.h"
#include "usedatacfgimpl.h"
#include "usedatacollectorcfgimpl.h"
#include "usedatamodifierscfgimpl.h"
#include "useenginecfgimpl.h"
#include "useexpressioncfgimpl.h"
#include "usefixedpresentationelementcfgimpl.h"
#include "usepresentercfgimpl.h"
#include "userefdatacfgimpl.h"
#include "userefpresentationelementcfgimpl.h"
#include "xmltags.h"
#include "xnodecfgimpl.h"
#include "xvaluecfgimpl.h"

namespace kaz::kazparser {
namespace {

struct Element {
    const std::wstring& name;
    KAZSAXAttributesImpl& attributes;
    INodeCfg* parent;
    SourceLocation where;
};

// Makes the node of an element; null when the element makes none.
using NodeMaker = INodeCfg* (*)(const Element&);

template <class Impl>
INodeCfg* located(Impl* node, const Element& element) {
    node->locate(element.where);
    return node;
}

INodeCfg* makeXNode(const Element& element) {
    return located(new XNodeCfgImpl(element.name, &element.attributes, element.parent), element);
}

// Makes an `Impl` from as much of the element as its constructor reads:
// name, attributes and parent; attributes and parent; or the parent alone.
template <class Impl>
INodeCfg* make(const Element& element) {
    using Attributes = kaz::xml::ISAXAttributes*;
    if constexpr (std::is_constructible_v<Impl, const std::wstring&, Attributes, INodeCfg*>) {
        return located(new Impl(element.name, &element.attributes, element.parent), element);
    } else if constexpr (std::is_constructible_v<Impl, Attributes, INodeCfg*>) {
        return located(new Impl(&element.attributes, element.parent), element);
    } else {
        return located(new Impl(element.parent), element);
    }
}

INodeCfg* makeUseRefData(const Element& element) {
    return located(new UseRefDataCfgImpl(element.name, element.parent), element);
}

INodeCfg* makeUseData(const Element& element) {
    return located(new UseDataCfgImpl(element.name, element.parent), element);
}

// Data values, references and table selections keep their element's
// content, nested elements included, instead of making nodes of it.
bool capturesContent(const INodeCfg* node) {
    return dynamic_cast<const UseDataCfgImpl*>(node) != nullptr ||
           dynamic_cast<const UseRefDataCfgImpl*>(node) != nullptr ||
           dynamic_cast<const SelectTablesCfgImpl*>(node) != nullptr;
}

// Elements whose name decides their kind. A null maker: the element is
// known but makes no node.
const std::unordered_map<std::wstring, NodeMaker>& kindsByName() {
    static const std::unordered_map<std::wstring, NodeMaker> table{
        {L"PresentationGroup", make<PresentationGroupCfgImpl>},
        {L"InputConfig", make<InputConfigCfgImpl>},
        {L"PresentationElements", make<PresentationElementsCfgImpl>},
        {L"XValue", make<XValueCfgImpl>},
        {L"UseDataCollector", make<UseDataCollectorCfgImpl>},
        {L"UseDataModifiers", make<UseDataModifiersCfgImpl>},
        {L"UseRefPresentationElement", make<UseRefPresentationElementCfgImpl>},
        {L"UseFixedPresentationElement", make<UseFixedPresentationElementCfgImpl>},
        {L"ExtParams", make<ExtParamsCfgImpl>},
        {L"ExtParam", make<ExtParamCfgImpl>},
        {L"PresentationElement", make<PresentationElementCfgImpl>},
        {L"OutputConfig", make<OutputConfigCfgImpl>},
        {L"UsePresenter", make<UsePresenterCfgImpl>},
        {L"ParamSets", make<ParamSetsCfgImpl>},
        {L"UseXValue", makeUseRefData},
        {L"UseData", makeUseRefData},
        {L"UseExpression", make<UseExpressionCfgImpl>},
        {L"UseEngine", make<UseEngineCfgImpl>},
        {L"UseDouble", makeUseData},
        {L"UseString", makeUseData},
        {L"UseInteger", makeUseData},
        {L"UseBoolean", makeUseData},
        {L"UseLanguageString", make<LanguageStringCfgImpl>},
        {L"UseTables", makeUseData},
        {L"UseTable", makeUseData},
        {L"UseColumn", makeUseData},
        {L"Tables", nullptr},
        {L"Table", nullptr},
        {L"Properties", nullptr},
        {L"Property", nullptr},
        {L"Column", nullptr},
        {L"SelectTables", make<SelectTablesCfgImpl>},
        {L"Features", make<FeaturesCfgImpl>},
        {L"ExtraValuesConfig", make<ExtraValuesConfigCfgImpl>},
        {L"SampleResults", make<SampleResultsCfgImpl>},
        {L"SampleFixedResult", make<SampleFixedResultCfgImpl>},
        {L"SampleRefResult", make<SampleRefResultCfgImpl>},
    };
    return table;
}

// The kind created for the first element when the factory expects one.
NodeMaker makerForExpectedKind(INodeCfg::NodeType kind) {
    switch (kind) {
        case INodeCfg::Param:
            return make<ParamCfgImpl>;
        case INodeCfg::DataCollector:
            return make<DataCollectorCfgImpl>;
        case INodeCfg::DataModifier:
            return make<DataModifierCfgImpl>;
        case INodeCfg::Feature:
            return make<FeatureCfgImpl>;
        case INodeCfg::ParamSet:
            return make<ParamSetCfgImpl>;
        case INodeCfg::Presenter:
            return make<PresenterCfgImpl>;
        default:
            return nullptr;
    }
}

// The kind of an element that its name does not decide, by its parent's kind.
NodeMaker makerForParentKind(INodeCfg::NodeType parentKind, const std::wstring& name) {
    switch (parentKind) {
        case INodeCfg::Features:
            return make<FeatureCfgImpl>;
        case INodeCfg::ParamSets:
            return make<ParamSetCfgImpl>;
        case INodeCfg::ParamSet:
            return make<ParamCfgImpl>;
        case INodeCfg::UsePresenter:
            return make<PresenterCfgImpl>;
        case INodeCfg::UseDataCollector:
            return name == L"SampleResults" ? make<SampleResultsCfgImpl>
                                            : make<DataCollectorCfgImpl>;
        case INodeCfg::UseDataModifiers:
            return make<DataModifierCfgImpl>;
        default:
            return makeXNode;
    }
}

bool receivesCharacters(INodeCfg::NodeType kind) {
    return kind == INodeCfg::UseData || kind == INodeCfg::UseExpression ||
           kind == INodeCfg::UseRefData || kind == INodeCfg::SampleRefResult;
}

const std::wstring kRootDirectoryMacro = L"[Kestrelon.RootDirectory]";

}  // namespace

KAZParserContentHandlerImpl::KAZParserContentHandlerImpl(INodeCfg* parent)
    : NodeStackHandler(parent) {}

KAZParserContentHandlerImpl::~KAZParserContentHandlerImpl() {
    freeRefused();
}

long KAZParserContentHandlerImpl::endDocument() {
    freeRefused();
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::freeRefused() {
    for (INodeCfg* node : refused_) delete node;
    refused_.clear();
}

void KAZParserContentHandlerImpl::addError(const std::wstring& text) {
    errorText_ += text;
    errorFlag_ = true;
}

// One pass into a new string: replacing in place would move the rest of the
// text once per occurrence.
void KAZParserContentHandlerImpl::replaceRootDirectory(std::wstring& text) {
    std::size_t found = text.find(kRootDirectoryMacro);
    if (found == std::wstring::npos) return;
    if (!rootDirectory_)
        rootDirectory_ = environmentadapter::IEnvironmentAdapter::getInstance().getRootDirectory();
    std::wstring replaced;
    replaced.reserve(text.size());
    std::size_t from = 0;
    for (; found != std::wstring::npos; found = text.find(kRootDirectoryMacro, from)) {
        replaced.append(text, from, found - from).append(*rootDirectory_);
        from = found + kRootDirectoryMacro.size();
    }
    replaced.append(text, from);
    text = std::move(replaced);
}

long KAZParserContentHandlerImpl::startElement(const wchar_t*, int, const wchar_t*, int,
                                               const wchar_t* qName, int qNameLength,
                                               kaz::xml::ISAXAttributes* attributes) {
    flushText();
    KAZSAXAttributesImpl copy(attributes);
    int count = 0;
    copy.getLength(&count);
    for (int i = 0; i < count; ++i) {
        const wchar_t* value = nullptr;
        int length = 0;
        if (kaz::xml::failed(copy.getValue(i, &value, &length))) continue;
        const std::wstring_view read(value, static_cast<std::size_t>(length));
        if (read.find(kRootDirectoryMacro) == read.npos) continue;
        std::wstring text(read);
        replaceRootDirectory(text);
        copy.setValue(i, text);
    }
    const std::wstring name(qName, static_cast<std::size_t>(qNameLength));
    madeNode_.push_back(false);
    if (rawFeature_ != nullptr) {
        rawFeature_->appendValue(L'<' + name + FeatureCfgImpl::attributeText(&copy) + L'>');
        return kaz::xml::S_OK;
    }
    if (dataMode_) {
        captured_.startElement(name, readAttributes(&copy));
        return kaz::xml::S_OK;
    }
    std::unique_ptr<INodeCfg> node(createNode(name, copy));
    if (node == nullptr) {
        addError(L"\nCan not create <" + name + L">\n");
        return kaz::xml::S_OK;
    }
    push(node.get());
    madeNode_.back() = true;
    // A feature keeps all its content as text, until its own end tag.
    rawFeature_ = dynamic_cast<IFeatureCfg*>(node.get());
    if (capturesContent(node.release())) {
        dataMode_ = true;
        captured_.clear();
    }
    return kaz::xml::S_OK;
}

INodeCfg* KAZParserContentHandlerImpl::createNode(const std::wstring& name,
                                                  KAZSAXAttributesImpl& attributes) {
    const Element element{name, attributes, nextParent(), startTagLocation()};
    const auto& byName = kindsByName();
    if (const auto known = byName.find(name); known != byName.end())
        return known->second != nullptr ? known->second(element) : nullptr;
    if (expectedKind_) {
        const INodeCfg::NodeType kind = *expectedKind_;
        expectedKind_.reset();
        const NodeMaker maker = makerForExpectedKind(kind);
        return maker != nullptr ? maker(element) : nullptr;
    }
    if (element.parent != nullptr)
        return makerForParentKind(element.parent->getNodeType(), name)(element);
    return makeXNode(element);
}

long KAZParserContentHandlerImpl::endElement(const wchar_t*, int, const wchar_t*, int,
                                             const wchar_t* qName, int qNameLength) {
    flushText();
    const std::wstring name(qName, static_cast<std::size_t>(qNameLength));
    const bool madeNode = madeNode_.back();
    madeNode_.pop_back();
    if (!madeNode) {
        if (dataMode_) {
            captured_.endElement(name);
        } else if (rawFeature_ != nullptr) {
            rawFeature_->appendValue(endTag(name));
        }
        return kaz::xml::S_OK;
    }
    // In data mode the only element with a node is the data element itself.
    if (dataMode_) finishCapture(name);
    rawFeature_ = nullptr;  // in raw mode only the feature's own element made a node
    INodeCfg* child = pop();
    if (hasOpenElements()) attachToParent(child, name);
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::attachToParent(INodeCfg* child, const std::wstring& name) {
    INodeCfg* parent = top();
    try {
        // A fixed sample entry's setChild lets go of its data node unfreed.
        auto* entry = parent->getNodeType() == INodeCfg::SampleFixedResult
                          ? dynamic_cast<ISampleFixedResultCfg*>(parent)
                          : nullptr;
        IUseDataCfg* held = entry != nullptr ? entry->getData() : nullptr;
        if (parent->setChild(child)) {
            if (held != nullptr && held != entry->getData()) delete held;
            return;
        }
        child->setParent(parent);
    } catch (kazexception::IKAZException* e) {
        kazexception::ExceptionGuard guard(e);
        addError(L"\nexception occorred at <" + name + L">\n" + e->getMessage());
    }
    refused_.push_back(child);
}

// The reader may cut one run of text anywhere (a macro included): the run
// is collected whole and handed on at the next element event.
long KAZParserContentHandlerImpl::characters(const wchar_t* chars, int length) {
    const INodeCfg* node = top();
    if (dataMode_ || rawFeature_ != nullptr ||
        (node != nullptr && receivesCharacters(node->getNodeType())))
        pendingText_.append(chars, static_cast<std::size_t>(length));
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::flushText() {
    if (pendingText_.empty()) return;
    replaceRootDirectory(pendingText_);
    if (dataMode_) {
        captured_.characters(pendingText_);
    } else if (rawFeature_ != nullptr) {
        rawFeature_->appendValue(pendingText_);
    } else if (auto* receiver = dynamic_cast<CharacterDataReceiver*>(top())) {
        receiver->appendCharacters(pendingText_);
    }
    pendingText_.clear();
}

void KAZParserContentHandlerImpl::finishCapture(const std::wstring& name) {
    dataMode_ = false;
    INodeCfg* node = top();
    try {
        if (auto* data = dynamic_cast<UseDataCfgImpl*>(node)) {
            data->setValue(readDataValue(name));
        } else if (auto* reference = dynamic_cast<UseRefDataCfgImpl*>(node)) {
            reference->setReference(captured_.markup());
        } else if (auto* selection = dynamic_cast<SelectTablesCfgImpl*>(node)) {
            selection->setContent(captured_.markup());
        }
    } catch (kazexception::IKAZException* e) {
        kazexception::ExceptionGuard guard(e);
        addError(L"\nexception occorred at <" + name + L">\n" + e->getMessage());
    }
    captured_.clear();
}

// Content without elements is read from its text directly; content with
// elements is read back through the document, as createUseDataCfg reads it.
tableobj::IElement* KAZParserContentHandlerImpl::readDataValue(const std::wstring& name) const {
    using tableobj::IElement;
    IElement::ElementType type = UseDataCfgImpl::typeOfElement(name);
    if (!captured_.hasElements()) return tablereader::valueFromText(type, captured_.text());
    const IXMLDOMDocument2Ptr doc = KAZConfigFactory::createXMLDocument();
    if (!KAZConfigFactory::loadXMLContent(doc,
                                          L"<" + name + L">" + captured_.markup() + endTag(name)))
        errors::invalidData(
            L"<" + name + L">: its content does not read back: " + doc->parseError().reason,
            KAZ_HERE(L"kaz::kazparser::KAZParserContentHandlerImpl", L"endElement"));
    const IXMLDOMNodePtr element = doc->documentElement();
    if (type == IElement::Tables) {
        const IXMLDOMNodePtr tables = tablereader::firstElementChild(*element);
        if (tables != nullptr && tablereader::holdsTablesLists(*tables))
            type = IElement::TablesCollection;
    }
    return KAZConfigFactory::createDataValue(type, element);
}

}  // namespace kaz::kazparser
