#pragma once

#include "platform/FileManager.h"
#include "support/FileTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>

namespace tavrik::test {

/// What every file manager promises. `Adapter` is default-constructible and has `FileManager& files()` and
/// `MacPath base() const`, an empty folder to work in, with no link above it. Instantiate with
/// INSTANTIATE_TYPED_TEST_SUITE_P.
template<typename Adapter>
class FileManagerContract : public testing::Test {
protected:
    MacPath at(std::string_view relative) const { return m_adapter.base() / relative; }

    void write(std::string_view relative, std::string_view text) {
        ASSERT_TRUE(files.createFolder(at(relative).parent()));
        ASSERT_TRUE(files.write(at(relative), bytesOf(text)));
    }

    std::string text(std::string_view relative) {
        const auto content = files.read(at(relative));
        return content ? std::string(textOf(*content)) : content.error().description;
    }

    void link(std::string_view relative, const std::string& target) {
        ASSERT_TRUE(files.createLink(at(relative), target));
    }

    FileTree tree() { return treeOf(files, m_adapter.base()); }

    /// The error code that a failing operation gives, and that it names a path and changes nothing.
    template<typename Operation>
    int refused(Operation operation) {
        const FileTree before = tree();
        const auto result = operation();
        EXPECT_THAT(differences(before, tree()), testing::IsEmpty());
        if (result)
            return 0;
        EXPECT_THAT(result.error().description, testing::HasSubstr(": "));
        return result.error().code;
    }

private:
    Adapter m_adapter;

protected:
    FileManager& files = m_adapter.files();
};

TYPED_TEST_SUITE_P(FileManagerContract);

TYPED_TEST_P(FileManagerContract, TellsWhatIsThereThroughLinksOrNot) {
    this->write("folder/file", "twelve bytes");
    this->link("link", "folder/file");
    this->link("folder/up", this->at("folder").string());
    this->link("dangling", "nowhere");

    EXPECT_EQ(this->text("folder/up/up/file"), "twelve bytes");
    EXPECT_EQ(this->text("folder/./up/../link"), "twelve bytes");
    EXPECT_TRUE(this->files.exists(this->at("link")));
    EXPECT_FALSE(this->files.exists(this->at("dangling")));
    const auto target = this->files.attributes(this->at("link"));
    const auto link = this->files.attributes(this->at("link"), Links::dontFollow);
    ASSERT_TRUE(target && link);
    EXPECT_EQ(target->type, FileType::file);
    EXPECT_EQ(target->size, 12u);
    EXPECT_EQ(link->type, FileType::symbolicLink);
    EXPECT_NE(target->fileID, link->fileID);
    EXPECT_EQ(*this->files.readLink(this->at("dangling")), "nowhere");
    EXPECT_THAT(*this->files.list(this->at("")), testing::ElementsAre("dangling", "folder", "link"));
    EXPECT_EQ(textOf(*this->files.readBeginning(this->at("link"), 6)), "twelve");
    EXPECT_EQ(textOf(*this->files.readBeginning(this->at("link"), 60)), "twelve bytes");
}

TYPED_TEST_P(FileManagerContract, GivesTheSystemsErrorAndChangesNothing) {
    this->write("file", "content");
    this->write("folder/inner", "content");
    this->link("dangling", "nowhere");
    this->link("circle", "circle");
    FileManager& manager = this->files;
    const auto at = [this](std::string_view path) { return this->at(path); };
    const MacPath withNul(at("nul").string() + std::string("\0x", 2));
    const ByteView data = bytesOf("new");

    EXPECT_EQ(this->refused([&] { return manager.read(at("missing")); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.read(at("folder")); }), EISDIR);
    EXPECT_EQ(this->refused([&] { return manager.read(at("file"), 6); }), EFBIG);
    EXPECT_EQ(this->refused([&] { return manager.read(at("circle")); }), ELOOP);
    EXPECT_EQ(this->refused([&] { return manager.readBeginning(at("folder"), 3); }), EISDIR);
    EXPECT_EQ(this->refused([&] { return manager.list(at("file")); }), ENOTDIR);
    EXPECT_EQ(this->refused([&] { return manager.readLink(at("file")); }), EINVAL);
    EXPECT_EQ(this->refused([&] { return manager.resolveLinks(at("dangling")); }), ENOENT);
    for (const char* taken : {"file", "folder", "dangling"}) {
        const auto path = at(taken);
        EXPECT_EQ(this->refused([&] { return manager.create(path, data); }), EEXIST);
        EXPECT_EQ(this->refused([&] { return manager.createLink(path, "x"); }), EEXIST);
        EXPECT_EQ(this->refused([&] { return manager.copy(at("file"), path); }), EEXIST);
        EXPECT_EQ(this->refused([&] { return manager.move(at("folder"), path); }), EEXIST);
    }
    EXPECT_EQ(this->refused([&] { return manager.createFolder(at("file")); }), EEXIST);
    EXPECT_EQ(this->refused([&] { return manager.createFolder(at("file/below")); }), ENOTDIR);
    EXPECT_EQ(this->refused([&] { return manager.create(at("missing/x"), data); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.create(withNul, data); }), EINVAL);
    EXPECT_EQ(this->refused([&] { return manager.write(at("folder"), data); }), EISDIR);
    EXPECT_EQ(this->refused([&] { return manager.move(at("missing"), at("to")); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.copy(at("missing"), at("to")); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.copy(at("folder"), at("folder/in")); }), EINVAL);
    EXPECT_EQ(this->refused([&] { return manager.replace(at("file"), at("missing")); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.remove(at("missing")); }), ENOENT);
    EXPECT_EQ(this->refused([&] { return manager.flush(at("missing")); }), ENOENT);
    for (const char* above : {"folder/..", "folder/.", "folder/../.."}) {
        const auto path = at(above);
        EXPECT_EQ(this->refused([&] { return manager.remove(path); }), EINVAL) << above;
        EXPECT_EQ(this->refused([&] { return manager.move(path, at("to")); }), EINVAL) << above;
    }
}

TYPED_TEST_P(FileManagerContract, NewThingsAreTheOwnersAloneWhateverTheMask) {
    for (const mode_t mask : {mode_t{0}, mode_t{0777}}) {
        const mode_t before = ::umask(mask);
        const std::string name = std::to_string(mask);
        EXPECT_TRUE(this->files.createFolder(this->at(name + "/a/b")));
        EXPECT_TRUE(this->files.create(this->at(name + "/a/created"), bytesOf("x")));
        EXPECT_TRUE(this->files.write(this->at(name + "/a/written"), bytesOf("x")));
        EXPECT_TRUE(this->files.copy(this->at(name + "/a"), this->at(name + "/copy")));
        ::umask(before);
        for (const auto& [path, entry] : treeOf(this->files, this->at(name)))
            EXPECT_TRUE(entry == "folder 700" || entry.starts_with("file 600 ")) << path << ": " << entry;
    }
}

TYPED_TEST_P(FileManagerContract, WritingGoesThroughALinkIntoTheSameFile) {
    this->write("target", "a long old content");
    this->link("link", "target");
    this->link("dangling", this->at("made").string());
    const auto before = this->files.attributes(this->at("target"));

    ASSERT_TRUE(this->files.write(this->at("link"), bytesOf("short")));
    ASSERT_TRUE(this->files.write(this->at("dangling"), bytesOf("fresh")));

    EXPECT_EQ(this->text("target"), "short");
    EXPECT_EQ(this->text("made"), "fresh");
    EXPECT_EQ(this->files.attributes(this->at("target"))->fileID, before->fileID);
}

TYPED_TEST_P(FileManagerContract, RemovingNeverFollowsALink) {
    this->write("victim/file", "precious");
    this->write("wrapper/deep/er/file", "ours");
    this->link("wrapper/Contents", this->at("victim").string());
    this->link("wrapper/deep/up", "../../victim");
    this->link("shortcut", "victim");

    ASSERT_TRUE(this->files.remove(this->at("shortcut")));
    ASSERT_TRUE(this->files.remove(this->at("wrapper")));

    EXPECT_EQ(this->tree().size(), 2u);
    EXPECT_EQ(this->text("victim/file"), "precious");
}

TYPED_TEST_P(FileManagerContract, CopiesAWholeTreeWithLinksAsLinks) {
    this->write("from/large", std::string(700'001, 'x'));
    this->write("from/sub/ -odd\nnäme", "");
    this->link("from/sub/link", "../large");
    this->link("from/dangling", "/nowhere");

    ASSERT_TRUE(this->files.setModified(this->at("from/large"), Date{1234.5}));
    ASSERT_TRUE(this->files.copy(this->at("from"), this->at("to")));

    EXPECT_THAT(differences(treeOf(this->files, this->at("from")), treeOf(this->files, this->at("to"))),
                testing::IsEmpty());
    EXPECT_EQ(this->files.attributes(this->at("to/large"))->modified, Date{1234.5});
    EXPECT_EQ(this->tree().size(), 12u);
}

TYPED_TEST_P(FileManagerContract, MovesAndReplacesInOneStep) {
    this->write("a/file", "moved");
    this->write("new", "new content");
    this->write("victim", "precious");
    this->link("old", "victim");

    ASSERT_TRUE(this->files.move(this->at("a"), this->at("b")));
    ASSERT_TRUE(this->files.replace(this->at("old"), this->at("new")));
    ASSERT_TRUE(this->files.replace(this->at("missing"), this->at("b/file")));

    EXPECT_EQ(this->text("old"), "new content");
    EXPECT_EQ(this->text("missing"), "moved");
    EXPECT_EQ(this->text("victim"), "precious");
    EXPECT_THAT(*this->files.list(this->at("")), testing::ElementsAre("b", "missing", "old", "victim"));
}

REGISTER_TYPED_TEST_SUITE_P(FileManagerContract, TellsWhatIsThereThroughLinksOrNot,
                            GivesTheSystemsErrorAndChangesNothing, NewThingsAreTheOwnersAloneWhateverTheMask,
                            WritingGoesThroughALinkIntoTheSameFile, RemovingNeverFollowsALink,
                            CopiesAWholeTreeWithLinksAsLinks, MovesAndReplacesInOneStep);

} // namespace tavrik::test
