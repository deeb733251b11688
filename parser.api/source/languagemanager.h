#pragma once

#include <map>
#include <shared_mutex>
#include <string>

namespace kaz::kazparser {

// The working language: the table from string ID to display text that
// nodes holding string IDs resolve through. One per process, shared by all
// threads and trees; a lookup may run while another thread loads.
class LanguageManager {
public:
    static LanguageManager& instance();

    LanguageManager() = default;
    LanguageManager(const LanguageManager&) = delete;
    LanguageManager& operator=(const LanguageManager&) = delete;
    virtual ~LanguageManager();

    // Replaces the table with the one of `resource`, an XML text: every
    // element below the document element that has a non-empty "id" gives
    // its text under that ID, and a repeated ID keeps the later text. An
    // empty or malformed resource answers false and keeps the table.
    bool load(const std::wstring& resource);
    // Copies the text of `id` to `text` when the table holds the ID;
    // otherwise leaves `text` as it is.
    bool lookup(const std::wstring& id, std::wstring& text) const;

private:
    mutable std::shared_mutex mutex_;
    std::map<std::wstring, std::wstring> table_;
};

}  // namespace kaz::kazparser
