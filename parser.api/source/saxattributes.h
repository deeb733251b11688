#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kazxml/SAX.h"

namespace kaz::kazparser {

using AttributeList = std::vector<std::pair<std::wstring, std::wstring>>;

// Raises the kaz::xml::PlatformError of a failed call of the reader's
// interfaces ("<interfaceName>::<operation> failed").
void checkReaderCall(long result, const wchar_t* interfaceName, const wchar_t* operation);

// Reading an element's attributes. A failing call raises the
// kaz::xml::PlatformError of that call.
int attributeCount(kaz::xml::ISAXAttributes& attributes);
std::wstring attributeQName(kaz::xml::ISAXAttributes& attributes, int index);
std::wstring attributeValue(kaz::xml::ISAXAttributes& attributes, int index);
std::wstring attributeLocalName(kaz::xml::ISAXAttributes& attributes, int index);

// How an element's attributes are named when they are read.
enum class AttributeNaming {
    Qualified,  // as written, prefix included; namespace declarations too
    Local,      // by local name; namespace declarations declare no value and are left out
};
// Every (name, value) pair in document order; none for null.
AttributeList readAttributes(kaz::xml::ISAXAttributes* attributes,
                             AttributeNaming naming = AttributeNaming::Qualified);
// An attribute flag: true exactly when the value, lowered, is "true".
bool flagValue(const std::wstring& value);

}  // namespace kaz::kazparser
