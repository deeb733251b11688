#pragma once

#include <memory>
#include <string>
#include <vector>

#include "columns.h"
#include "elementbase.h"
#include "tableobj/ITable.h"

namespace tableobj {

// The columns of a table: each added column must have the table's row count.
class TableColumns final : public ColumnsImpl {
protected:
    void checkItem(const IColumn& column, std::size_t replaced, const wchar_t* op) const override;
};

class TableImpl final : public NamedBase<ITable> {
public:
    TableImpl(std::wstring name, std::wstring desc) : NamedBase(std::move(name), std::move(desc)) {}
    TableImpl(const TableImpl& other);

    ElementType getElementType() const override { return IElement::Table; }
    IColumns& getColumns() override { return columns_; }
    const IColumns& getColumns() const override { return columns_; }
    std::size_t getRowCount() const override;

    std::size_t getPropertyCount() const override { return properties_.size(); }
    const std::wstring& getPropertyName(std::size_t index) const override;
    const IElement& getPropertyAt(std::size_t index) const override;
    const IElement* getProperty(const std::wstring& name) const override;
    bool hasProperty(const std::wstring& name) const override;
    void setProperty(const std::wstring& name, IElement* value) override;
    bool removeProperty(const std::wstring& name) override;

    IElement* clone() const override { return new TableImpl(*this); }
    bool equals(const IElement& other) const override;
    bool writeXml(IXmlWriter& out) const override;

private:
    struct Property {
        std::wstring name;
        std::unique_ptr<IElement> value;
    };

    std::vector<Property>::const_iterator findProperty(const std::wstring& name) const;
    bool sameProperties(const ITable& other) const;
    void writeProperties(XmlSink& sink) const;

    TableColumns columns_;
    std::vector<Property> properties_;
};

}  // namespace tableobj
