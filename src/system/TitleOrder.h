#pragma once

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

/// The user's own alphabetical order, without regard to case. In the "C" locale, which knows only the order of
/// bytes, the English one.
inline QCollator titleCollator() {
    const QLocale locale = QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

/// Sorts by title, ascending; equal titles keep their order. `title` gives an item's UTF-8 text.
template<typename Item, typename Title>
void sortByTitle(std::vector<Item>& items, Title title) {
    const QCollator collator = titleCollator();
    std::vector<std::pair<QCollatorSortKey, std::size_t>> order;
    order.reserve(items.size());
    for (std::size_t index = 0; index < items.size(); ++index)
        order.emplace_back(collator.sortKey(QString::fromStdString(title(items[index]))), index);
    std::sort(order.begin(), order.end(), [](const auto& left, const auto& right) {
        const int compared = left.first.compare(right.first);
        return compared != 0 ? compared < 0 : left.second < right.second;
    });
    std::vector<Item> sorted;
    sorted.reserve(items.size());
    for (const auto& [key, index] : order)
        sorted.push_back(std::move(items[index]));
    items = std::move(sorted);
}

} // namespace tavrik
