#include "extraattributes.h"

#include "nodeerrors.h"

namespace kaz::kazparser {

void ExtraAttributes::checkIndex(unsigned int index, const wchar_t* method) const {
    if (index >= count()) errors::indexOutOfRange(index, KAZ_HERE(className_, method));
}

const std::wstring& ExtraAttributes::value(unsigned int index, const wchar_t* method) const {
    checkIndex(index, method);
    return list_[index].second;
}

const std::wstring& ExtraAttributes::value(const std::wstring& name, const wchar_t* method) const {
    const auto found = positions_.find(name);
    if (found == positions_.end()) errors::notChildName(name, KAZ_HERE(className_, method));
    return list_[found->second].second;
}

void ExtraAttributes::set(unsigned int index, const std::wstring& value, const wchar_t* method) {
    checkIndex(index, method);
    list_[index].second = value;
}

void ExtraAttributes::set(const std::wstring& name, const std::wstring& value) {
    if (const auto found = positions_.find(name); found != positions_.end()) {
        list_[found->second].second = value;
        return;
    }
    list_.emplace_back(name, value);
    try {
        positions_.emplace(name, static_cast<unsigned int>(list_.size() - 1));
    } catch (...) {  // list and map must keep naming the same attributes
        list_.pop_back();
        throw;
    }
}

void ExtraAttributes::write(StartTag& tag) const {
    for (const auto& [name, value] : list_) tag.always(name, value);
}

}  // namespace kaz::kazparser
