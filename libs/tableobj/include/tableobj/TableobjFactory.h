#pragma once

#include <string>

#include "tableobj/Export.h"
#include "tableobj/IColumn.h"
#include "tableobj/IColumns.h"
#include "tableobj/IElement.h"
#include "tableobj/IScalar.h"
#include "tableobj/ITable.h"
#include "tableobj/ITables.h"
#include "tableobj/ITablesCollection.h"

namespace tableobj {

// Makes table objects. The caller owns what it gets.
class TABLEOBJ_API TableobjFactory {
public:
    static IString* createString(const std::wstring& value = L"");
    static IInt* createInt(int value = 0);
    static IDouble* createDouble(double value = 0.0);
    static IBool* createBool(bool value = false);
    // A scalar of `type` read from `text` (as IColumn::setValueText reads).
    // Throws invalid data when `type` is not a scalar type.
    static IElement* createScalar(IElement::ElementType type, const std::wstring& text);

    static IColumnString* createColumnString(const std::wstring& name = L"");
    static IColumnInt* createColumnInt(const std::wstring& name = L"");
    static IColumnDouble* createColumnDouble(const std::wstring& name = L"");
    static IColumnBool* createColumnBool(const std::wstring& name = L"");
    // A column of values of `dataType`. Throws invalid data when `dataType`
    // is not a scalar type.
    static IColumn* createColumn(IElement::ElementType dataType, const std::wstring& name = L"");

    static IColumns* createColumns();
    static ITable* createTable(const std::wstring& name = L"", const std::wstring& desc = L"");
    static ITables* createTables(const std::wstring& name = L"", const std::wstring& desc = L"");
    static ITablesCollection* createTablesCollection();

    // "integer", "double", "boolean", "string" -> the scalar type; NoValue for
    // any other text.
    static IElement::ElementType elementTypeFromDatatype(const std::wstring& datatype);
    // The datatype text of a scalar type; empty for other types.
    static std::wstring datatypeFromElementType(IElement::ElementType type);

    TableobjFactory() = delete;
};

}  // namespace tableobj
