#pragma once

#include <string>

#include "kazparser/IDataCfg.h"

namespace kaz::kazparser {

// A text of the working language, named by its string ID ("UseLanguageString"
// holding the ID as its text). It yields a String value once it has an ID,
// and has no child nodes. Its NodeType is UseData (16), like IUseDataCfg:
// tell the two apart with a cast to this interface.
class KAZPARSER_API ILanguageStringCfg : public IDataCfg {
public:
    // The string ID, the element's text; the display text is looked up with it.
    virtual const std::wstring& getStringID() const = 0;
    virtual void setStringID(const std::wstring& id) = 0;
    // The text of the ID in the working language (the one installed with
    // KAZConfigFactory::setWorkingLanguageResource); the ID itself when the
    // working language has no text for it.
    virtual std::wstring getDisplayText() const = 0;
};

}  // namespace kaz::kazparser
