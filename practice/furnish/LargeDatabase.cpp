#include "practice/furnish/LargeDatabase.h"

#include "practice/furnish/HostFiles.h"
#include "practice/furnish/LaunchpadDatabaseBuilder.h"
#include "practice/furnish/SampleApps.h"
#include "practice/furnish/VolumeBookmarks.h"

#include <string>
#include <utility>
#include <vector>

namespace tavrik::practice {

namespace {

constexpr int kAppsOnPage = 35;

/// ASCII letters as mathematical bold ones; what else there is stays.
std::string inBold(const std::string& text) {
    // The capitals begin at U+1D400 and the small letters at U+1D41A, in UTF-8: F0 9D 90 80 and F0 9D 90 9A.
    std::string styled;
    const auto append = [&styled](unsigned offset) {
        const unsigned low = 0x400 + offset; // above U+1D000
        styled += "\xF0\x9D";
        styled += static_cast<char>(0x80 | (low >> 6));
        styled += static_cast<char>(0x80 | (low & 0x3F));
    };
    for (const char letter : text) {
        if (letter >= 'A' && letter <= 'Z')
            append(static_cast<unsigned>(letter - 'A'));
        else if (letter >= 'a' && letter <= 'z')
            append(26 + static_cast<unsigned>(letter - 'a'));
        else
            styled += letter;
    }
    return styled;
}

} // namespace

Status writeLargeDatabase(const HostPath& root, const HostPath& file, int rows, TitleStyle style) {
    std::vector<Bytes> bookmarks;
    for (const SampleApp& app : sampleApps()) {
        Result<Bytes> bookmark = systemBookmark(root, bundlePath(app), createdDate(app));
        if (!bookmark)
            return bookmark.error();
        bookmarks.push_back(std::move(*bookmark));
    }
    for (const char* suffix : {"", "-wal", "-shm"})
        if (Status removed = removeHostTree(HostPath(file.string() + suffix)); !removed)
            return removed;

    LaunchpadDatabaseBuilder builder(file);
    LaunchpadRow page{};
    for (int row = 0; row < rows; ++row) {
        if (row % kAppsOnPage == 0)
            page = builder.addPage();
        const std::size_t index = static_cast<std::size_t>(row) % sampleApps().size();
        const SampleApp& app = sampleApps()[index];
        const std::string number = std::to_string(1'000'000 + row).substr(1);
        const std::string title = app.name + (" " + number);
        builder.addApp(page,
                       {style == TitleStyle::plain ? title : inBold(title), "org.example.large.n" + number,
                        bookmarks[index], modifiedDate(app), app.category});
    }
    return builder.finish();
}

} // namespace tavrik::practice
