#pragma once

#include "kazparser/INodeCfg.h"
#include "kazparser/IPresenterCfg.h"
#include "kazparser/ISelectTablesCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"

namespace kaz::kazparser {

// One presenter stage of an output configuration ("UsePresenter"): the
// tables it takes, the modifiers applied to them and the presenter, each
// optional. Children in getChild order, as data flows: the table
// selection, the modifier list, the presenter.
class KAZPARSER_API IUsePresenterCfg : public INodeCfg {
public:
    virtual ISelectTablesCfg* getSelectTables() const = 0;
    // Deletes the current child and adopts the argument; null raises
    // "Invalid argument".
    virtual void setSelectTables(ISelectTablesCfg* selection) = 0;
    // Hands back the child detached, or null; the caller owns it.
    virtual ISelectTablesCfg* releaseSelectTables() = 0;
    // Adopts the argument and hands back the previous child detached, or
    // null. Null raises "Invalid argument".
    virtual ISelectTablesCfg* replaceSelectTables(ISelectTablesCfg* selection) = 0;

    // As the table-selection operations, for the modifier list.
    virtual IUseDataModifiersCfg* getUseDataModifiers() const = 0;
    virtual void setUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    virtual IUseDataModifiersCfg* releaseUseDataModifiers() = 0;
    virtual IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;

    // As the table-selection operations, for the presenter.
    virtual IPresenterCfg* getPresenter() const = 0;
    virtual void setPresenter(IPresenterCfg* presenter) = 0;
    virtual IPresenterCfg* releasePresenter() = 0;
    virtual IPresenterCfg* replacePresenter(IPresenterCfg* presenter) = 0;
};

}  // namespace kaz::kazparser
