#include "model/SettingsCoding.h"

#include <limits>

namespace tavrik::settings {

namespace {

constexpr const char* kOriginalRowID = "originalRowID";
constexpr const char* kTavrikRowID = "tavrikRowID";

std::int64_t number(RowID row) {
    return static_cast<std::int64_t>(row);
}

template<typename T>
std::optional<T> field(const plist::Value& record, std::string_view key) {
    const T* value = record.find<T>(key);
    return value ? std::optional<T>(*value) : std::nullopt;
}

std::optional<RowID> row(const plist::Value& record, std::string_view key) {
    const auto value = field<std::int64_t>(record, key);
    return value ? std::optional(RowID{*value}) : std::nullopt;
}

/// Flags are left out where the column is NULL.
plist::Dictionary encodePlacement(const ItemPlacement& placement) {
    plist::Dictionary fields{{"parentID", number(placement.parentID)},
                             {"ordering", std::int64_t{placement.ordering}}};
    if (placement.flags)
        fields.emplace("flags", std::int64_t{*placement.flags});
    return fields;
}

std::optional<std::int32_t> int32Field(const plist::Value& record, std::string_view key) {
    const auto value = field<std::int64_t>(record, key);
    if (!value || *value < std::numeric_limits<std::int32_t>::min() ||
        *value > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(*value);
}

std::optional<ItemPlacement> placement(const plist::Value& record, std::string_view key) {
    const plist::Value* fields = record.find(key);
    if (!fields)
        return std::nullopt;
    const auto parentID = row(*fields, "parentID");
    const auto ordering = int32Field(*fields, "ordering");
    const auto flags = int32Field(*fields, "flags");
    if (!parentID || !ordering || (fields->find("flags") && !flags))
        return std::nullopt;
    return ItemPlacement{flags, *parentID, *ordering};
}

} // namespace

plist::Dictionary encode(const TavrikMapping& mapping) {
    return {{kOriginalRowID, number(mapping.originalRowID)},
            {kTavrikRowID, number(mapping.tavrikRowID)},
            {"createdDate", mapping.createdDate}};
}

template<>
std::optional<TavrikMapping> decode(const plist::Value& value) {
    const auto originalRowID = row(value, kOriginalRowID);
    const auto tavrikRowID = row(value, kTavrikRowID);
    const auto createdDate = field<Date>(value, "createdDate");
    if (!originalRowID || !tavrikRowID || !createdDate)
        return std::nullopt;
    return TavrikMapping{*originalRowID, *tavrikRowID, *createdDate};
}

plist::Dictionary encode(const FontState& state) {
    return {
        {"fontName", state.fontName}, {"isMultiCase", state.isMultiCase}, {"appliedDate", state.appliedDate}};
}

template<>
std::optional<FontState> decode(const plist::Value& value) {
    const auto fontName = field<std::string>(value, "fontName");
    const auto isMultiCase = field<bool>(value, "isMultiCase");
    const auto appliedDate = field<Date>(value, "appliedDate");
    if (!fontName || !isMultiCase || !appliedDate)
        return std::nullopt;
    return FontState{*fontName, *isMultiCase, *appliedDate};
}

template<>
std::optional<FolderBackup> decode(const plist::Value& value) {
    if (!value.as<plist::Dictionary>())
        return std::nullopt;
    return FolderBackup{field<std::string>(value, "original"), field<Date>(value, "originalDate"),
                        field<std::string>(value, "lastGood"), field<Date>(value, "lastGoodDate"),
                        field<std::string>(value, "lastGoodFont")};
}

plist::Dictionary encode(const HiddenFlagApp& app) {
    plist::Dictionary fields{{"originalFlags", app.originalFlags},
                             {kOriginalRowID, number(app.originalRowID)},
                             {"wasHiddenFlag", app.wasHiddenFlag},
                             {"lastSeenDate", app.lastSeenDate}};
    if (app.tavrikRowID)
        fields.emplace(kTavrikRowID, number(*app.tavrikRowID));
    return fields;
}

template<>
std::optional<HiddenFlagApp> decode(const plist::Value& value) {
    const auto originalFlags = field<std::int64_t>(value, "originalFlags");
    const auto originalRowID = row(value, kOriginalRowID);
    const auto wasHiddenFlag = field<bool>(value, "wasHiddenFlag");
    const auto lastSeenDate = field<Date>(value, "lastSeenDate");
    if (!originalFlags || !originalRowID || !wasHiddenFlag || !lastSeenDate)
        return std::nullopt;
    return HiddenFlagApp{*originalFlags, *originalRowID, row(value, kTavrikRowID), *wasHiddenFlag,
                         *lastSeenDate};
}

plist::Dictionary encode(const DockBookmark& bookmark) {
    plist::Dictionary fields{
        {"bundleID", bookmark.bundleID}, {"bookmark", bookmark.bookmark}, {"isOriginal", bookmark.isOriginal}};
    if (bookmark.fileModDate)
        fields.emplace("fileModDate", *bookmark.fileModDate);
    return fields;
}

template<>
std::optional<DockBookmark> decode(const plist::Value& value) {
    auto bundleID = field<std::string>(value, "bundleID");
    auto bookmark = field<Bytes>(value, "bookmark");
    const auto isOriginal = field<bool>(value, "isOriginal");
    if (!bundleID || !bookmark || !isOriginal)
        return std::nullopt;
    const plist::Value* date = value.find("fileModDate");
    return DockBookmark{std::move(*bundleID), std::move(*bookmark), *isOriginal,
                        date ? std::optional(*date) : std::nullopt};
}

plist::Dictionary encode(const SwapRecord& record) {
    return {{kOriginalRowID, number(record.originalRowID)},
            {"original", encodePlacement(record.original)},
            {kTavrikRowID, number(record.tavrikRowID)},
            {"tavrik", encodePlacement(record.tavrik)}};
}

template<>
std::optional<SwapRecord> decode(const plist::Value& value) {
    const auto originalRowID = row(value, kOriginalRowID);
    const auto original = placement(value, "original");
    const auto tavrikRowID = row(value, kTavrikRowID);
    const auto tavrik = placement(value, "tavrik");
    if (!originalRowID || !original || !tavrikRowID || !tavrik)
        return std::nullopt;
    return SwapRecord{*originalRowID, *original, *tavrikRowID, *tavrik};
}

} // namespace tavrik::settings
