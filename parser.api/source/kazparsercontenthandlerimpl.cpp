#include "kazparsercontenthandlerimpl.h"

#include <memory>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "featurecfgimpl.h"
#include "kazparser/ISampleFixedResultCfg.h"
#include "nodecast.h"
#include "nodeerrors.h"
#include "tablereader.h"
#include "usedatacfgimpl.h"
#include "xmltags.h"

namespace kaz::kazparser {
namespace {

const std::wstring kRootDirectoryMacro = L"[Kestrelon.RootDirectory]";

}  // namespace

KAZParserContentHandlerImpl::KAZParserContentHandlerImpl(INodeCfg* parent)
    : NodeStackHandler(parent) {}

KAZParserContentHandlerImpl::~KAZParserContentHandlerImpl() = default;

long KAZParserContentHandlerImpl::endDocument() {
    refused_.clear();
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::addError(const std::wstring& text) {
    errorText_ += text;
    errorFlag_ = true;
}

void KAZParserContentHandlerImpl::addException(std::wstring_view name,
                                               kazexception::IKAZException* e) {
    kazexception::ExceptionGuard guard(e);
    addError(L"\nexception occorred at <" + std::wstring(name) + L">\n" + e->getMessage());
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

void KAZParserContentHandlerImpl::replaceRootDirectory(KAZSAXAttributesImpl& attributes) {
    int count = 0;
    attributes.getLength(&count);
    for (int i = 0; i < count; ++i) {
        const wchar_t* value = nullptr;
        int length = 0;
        if (kaz::xml::failed(attributes.getValue(i, &value, &length))) continue;
        const std::wstring_view read(value, static_cast<std::size_t>(length));
        if (read.find(kRootDirectoryMacro) == read.npos) continue;
        std::wstring text(read);
        replaceRootDirectory(text);
        attributes.setValue(i, text);
    }
}

long KAZParserContentHandlerImpl::startElement(const wchar_t*, int, const wchar_t*, int,
                                               const wchar_t* qName, int qNameLength,
                                               kaz::xml::ISAXAttributes* attributes) {
    flushText();
    KAZSAXAttributesImpl copy(attributes);
    replaceRootDirectory(copy);
    const std::wstring& name = nameOf(qName, qNameLength);
    if (capturing()) {
        captureStart(name, copy);
    } else if (const kinds::Kind* kind = chooseKind(name, nextParent())) {
        openNode(*kind, name, copy);
    } else {
        pushNoNode();
        addError(L"\nCan not create <" + name + L">\n");
    }
    return kaz::xml::S_OK;
}

const std::wstring& KAZParserContentHandlerImpl::nameOf(const wchar_t* qName, int length) {
    elementName_.assign(qName, static_cast<std::size_t>(length));
    return elementName_;
}

const kinds::Kind* KAZParserContentHandlerImpl::chooseKind(const std::wstring& name,
                                                           INodeCfg* parent) {
    bool makesNothing = false;
    if (const kinds::Kind* kind = kinds::byName(name, makesNothing)) return kind;
    if (makesNothing) return nullptr;
    if (expectedKind_) {
        const INodeCfg::NodeType kind = *expectedKind_;
        expectedKind_.reset();
        return kinds::expected(kind);
    }
    if (parent != nullptr) return &kinds::childOf(parent->getNodeType());
    return &kinds::of(INodeCfg::XNode);
}

void KAZParserContentHandlerImpl::openNode(const kinds::Kind& kind, const std::wstring& name,
                                           KAZSAXAttributesImpl& attributes) {
    const kinds::Made made = kind.make({name, &attributes, startTagLocation()}, nextParent());
    push(made.node, made.content, static_cast<int>(kind.content));
    if (collectsContent(kind.content)) captured_.clear();
}

bool KAZParserContentHandlerImpl::collectsContent(Mode mode) {
    return mode == Mode::Markup || mode == Mode::Value;
}

bool KAZParserContentHandlerImpl::capturing() const {
    return mode() == Mode::Raw || collectsContent(mode());
}

void KAZParserContentHandlerImpl::captureStart(const std::wstring& name,
                                               KAZSAXAttributesImpl& attributes) {
    ++nested_;
    const ElementStart element{name, &attributes, {}};
    if (mode() == Mode::Raw)
        topContent()->appendText(L'<' + name + FeatureCfgImpl::attributeText(element) + L'>');
    else
        captured_.startElement(element);
}

void KAZParserContentHandlerImpl::captureEnd(std::wstring_view name) {
    --nested_;
    if (mode() == Mode::Raw)
        topContent()->appendText(endTag(name));
    else
        captured_.endElement();
}

long KAZParserContentHandlerImpl::endElement(const wchar_t*, int, const wchar_t*, int,
                                             const wchar_t* qName, int qNameLength) {
    flushText();
    const std::wstring_view name(qName, static_cast<std::size_t>(qNameLength));
    if (nested_ > 0) {
        captureEnd(name);
        return kaz::xml::S_OK;
    }
    if (!topMadeNode()) {
        popNoNode();
        return kaz::xml::S_OK;
    }
    if (collectsContent(mode())) finishCapture(name);
    INodeCfg* child = pop();
    if (top() != nullptr) attachToParent(child, name);
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::attachToParent(INodeCfg* child, std::wstring_view name) {
    std::unique_ptr<INodeCfg> owned(child);  // until the parent or the refused list takes it
    INodeCfg* parent = top();
    try {
        if (takeSampleData(parent, child) || parent->setChild(child)) {
            owned.release();
            return;
        }
    } catch (kazexception::IKAZException* e) {
        addException(name, e);
    }
    refused_.append(child, nullptr);
    owned.release();
}

// A fixed sample entry's setChild lets go of the data node it held, unfreed;
// its setData frees it.
bool KAZParserContentHandlerImpl::takeSampleData(INodeCfg* parent, INodeCfg* child) {
    if (parent->getNodeType() != INodeCfg::SampleFixedResult) return false;
    auto* entry = nodeCast<ISampleFixedResultCfg>(parent);
    auto* data = nodeCast<IUseDataCfg>(child);
    if (entry == nullptr || data == nullptr) return false;
    entry->setData(data);
    return true;
}

// The reader may cut one run of text anywhere (a macro included): the run
// is collected whole and handed on at the next element event.
long KAZParserContentHandlerImpl::characters(const wchar_t* chars, int length) {
    if (mode() != Mode::Nodes) pendingText_.append(chars, static_cast<std::size_t>(length));
    return kaz::xml::S_OK;
}

void KAZParserContentHandlerImpl::flushText() {
    if (pendingText_.empty()) return;
    replaceRootDirectory(pendingText_);
    if (collectsContent(mode()))
        captured_.characters(pendingText_);
    else if (ContentSink* content = topContent())
        content->appendText(pendingText_);
    pendingText_.clear();
}

void KAZParserContentHandlerImpl::finishCapture(std::wstring_view name) {
    try {
        if (mode() == Mode::Value)
            topContent()->takeValue(readDataValue(name));
        else
            topContent()->takeMarkup(captured_.markup());
    } catch (kazexception::IKAZException* e) {
        addException(name, e);
    }
    captured_.clear();
}

// The content was collected as the reader delivered it; a "Tables" element
// holding lists of tables is read as a collection of them.
tableobj::IElement* KAZParserContentHandlerImpl::readDataValue(std::wstring_view name) const {
    using tableobj::IElement;
    IElement::ElementType type = UseDataCfgImpl::typeOfElement(name);
    const ContentNode& content = captured_.content();
    if (type == IElement::Tables) {
        const ContentNode* tables = tablereader::firstElementChild(content);
        if (tables != nullptr && tablereader::holdsTablesLists(*tables))
            type = IElement::TablesCollection;
    }
    return tablereader::readValue(type, content);
}

}  // namespace kaz::kazparser
