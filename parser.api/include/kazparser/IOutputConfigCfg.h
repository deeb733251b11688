#pragma once

#include <string>

#include "kazparser/INodeCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"
#include "kazparser/IUsePresenterCfg.h"

namespace kaz::kazparser {

// What happens to a presentation element's data ("OutputConfig"): an
// optional list of data modifiers, then an ordered list of presenter
// stages. Children in getChild order: the modifier list if present, then
// the presenter stages.
class KAZPARSER_API IOutputConfigCfg : public INodeCfg {
public:
    virtual IUseDataModifiersCfg* getUseDataModifiers() const = 0;
    // The stage at `index`; an index not below the count raises the
    // out-of-range error.
    virtual IUsePresenterCfg* getUsePresenter(unsigned int index) const = 0;
    // The first stage whose getName() is `name`, or null; never raises.
    virtual IUsePresenterCfg* getUsePresenter(const std::wstring& name) const = 0;
    // Deletes the current list and adopts `modifiers`; null raises
    // "Invalid argument".
    virtual void setUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    // Puts `presenter` at `index` and deletes the stage that was there. Null
    // raises "Invalid argument", then a bad index the out-of-range error.
    virtual void setUsePresenter(IUsePresenterCfg* presenter, unsigned int index) = 0;
    // Takes `modifiers` without making it a child of this node (null raises
    // "Invalid argument") and hands back the previous list detached, or null.
    virtual IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    // Puts `presenter` at `index` and hands back the previous stage
    // detached. Errors as setUsePresenter.
    virtual IUsePresenterCfg* replaceUsePresenter(IUsePresenterCfg* presenter,
                                                  unsigned int index) = 0;
    // Hands back the list detached, or null; the caller owns it.
    virtual IUseDataModifiersCfg* releaseUseDataModifiers() = 0;
    // Takes the stage at `index` out and hands it back detached.
    virtual IUsePresenterCfg* removeUsePresenter(unsigned int index) = 0;
    // Places `presenter` before the stage now at `index` (which must exist,
    // so this never adds at the end) and answers `index`. Errors as
    // setUsePresenter.
    virtual unsigned int insertUsePresenter(IUsePresenterCfg* presenter, unsigned int index) = 0;
    // Adds at the end and answers the new count. Null is added as an empty
    // entry, which getUsePresenter and getChild answer as null.
    virtual unsigned int appendUsePresenter(IUsePresenterCfg* presenter) = 0;
    virtual unsigned int getUsePresenterCount() const = 0;
};

}  // namespace kaz::kazparser
