#pragma once

#include "tableobj/IColumn.h"
#include "tableobj/IElement.h"
#include "tableobj/IItemList.h"

namespace tableobj {

// An ordered list of columns that owns them.
class TABLEOBJ_API IColumns : public IElement, public IItemList<IColumn> {};

}  // namespace tableobj
