#pragma once

#include "tableobj/IElement.h"
#include "tableobj/IItemList.h"
#include "tableobj/INamed.h"
#include "tableobj/ITable.h"

namespace tableobj {

// A named, ordered list of tables that owns them.
class TABLEOBJ_API ITables : public IElement, public INamed, public IItemList<ITable> {};

}  // namespace tableobj
