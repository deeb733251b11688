#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kazparser/SourceLocation.h"
#include "kazxml/SAX.h"

namespace kaz::kazparser {

using AttributeList = std::vector<std::pair<std::wstring, std::wstring>>;

// One element as the builder reads it: its name, its attributes (the
// root-directory macro already replaced; may be null) and where its start
// tag is. Every kind made from an element is constructed from this.
struct ElementStart {
    const std::wstring& name;
    kaz::xml::ISAXAttributes* attributes;
    SourceLocation where;
};

// Raises the kaz::xml::PlatformError of a failed call of the reader's
// interfaces ("<interfaceName>::<operation> failed").
void checkReaderCall(long result, const wchar_t* interfaceName, const wchar_t* operation);

// How an element's attributes are named when they are read.
enum class AttributeNaming {
    Qualified,  // as written, prefix included; namespace declarations too
    Local,      // by local name; namespace declarations declare no value and are left out
};

// One attribute as the reader holds it; the views live as long as the list.
struct AttributeView {
    std::wstring_view qName;
    std::wstring_view localName;
    std::wstring_view value;
};

// Reading an element's attributes. A failing call raises the
// kaz::xml::PlatformError of that call.
int attributeCount(kaz::xml::ISAXAttributes& attributes);
AttributeView attributeAt(kaz::xml::ISAXAttributes& attributes, int index);
bool isNamespaceDeclaration(std::wstring_view qName);

// Calls `visit(name, value)` with views of each attribute of `element`, in
// document order, named as `naming` says. Nothing is copied.
template <class Visit>
void forEachAttribute(const ElementStart& element, AttributeNaming naming, Visit&& visit) {
    if (element.attributes == nullptr) return;
    const int count = attributeCount(*element.attributes);
    for (int i = 0; i < count; ++i) {
        const AttributeView attribute = attributeAt(*element.attributes, i);
        if (naming == AttributeNaming::Qualified)
            visit(attribute.qName, attribute.value);
        else if (!isNamespaceDeclaration(attribute.qName))
            visit(attribute.localName, attribute.value);
    }
}

// Every (qualified name, value) pair in document order, copied.
AttributeList readAttributes(const ElementStart& element);
// The same into `into`, reusing the storage of the pairs it holds.
void readAttributes(const ElementStart& element, AttributeList& into);
// An attribute flag: true exactly when the value, lowered, is "true".
bool flagValue(std::wstring_view value);

}  // namespace kaz::kazparser
