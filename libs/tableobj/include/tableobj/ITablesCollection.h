#pragma once

#include "tableobj/IElement.h"
#include "tableobj/IItemList.h"
#include "tableobj/ITables.h"

namespace tableobj {

// An ordered list of lists of tables that owns them.
class TABLEOBJ_API ITablesCollection : public IElement, public IItemList<ITables> {};

}  // namespace tableobj
