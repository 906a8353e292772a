#include "ui/main/saved_choice.h"

#include "engine/fixed_text.h"
#include "store/code_page.h"
#include "ui/widgets/catalogue_list_box.h"
#include "ui/widgets/catalogue_text.h"

#include <functional>

namespace quillon::ui {

namespace {

constexpr std::size_t kWidestName = 25;

int Find(const CatalogueListBox& list, const std::function<bool(const std::string&)>& matches)
{
    for (int index = 0; index < list.count(); ++index) {
        if (matches(RecordText(list.itemText(index)))) {
            return index;
        }
    }
    return -1;
}

} // namespace

bool ChooseSaved(CatalogueListBox& list, std::string_view name, std::size_t width)
{
    if (name.empty()) {
        return false;
    }
    int index = Find(list, [&](const std::string& entry) { return entry == name; });
    if (index < 0) {
        index = Find(list, [&](const std::string& entry) {
            engine::FixedText<kWidestName> held;
            held = std::string_view(entry).substr(0, width);
            return store::EqualTexts(held.Trimmed(), name);
        });
    }
    list.Choose(index);
    return index >= 0;
}

} // namespace quillon::ui
