#include "platform/practice/AppleDouble.h"

#include "platform/ByteOrder.h"
#include "platform/practice/ResourceFork.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tavrik::practice {

namespace {

constexpr std::uint32_t kIcns = 0x69636E73;

/// A map of three types, one with a name and one of the system's flags.
Bytes variedFork() {
    const std::vector<Resource> resources{
        {kIcns, -16455, 0, std::nullopt, bytesOf("icon")},
        {0x54455854, 128, 0x20, "Notes", bytesOf("first text")},
        {0x70696373, 7, 0, "", bytesOf("")},
        {0x54455854, 129, 0, "More", bytesOf("second text")},
    };
    return *encodeResourceFork(resources);
}

} // namespace

TEST(ResourceFork, LaysOutOneIconAsTheMacDoes) {
    const std::vector<Resource> icon{{kIcns, -16455, 0, std::nullopt, bytesOf("abcde")}};
    Bytes expected;
    for (const std::uint32_t number : {256u, 265u, 9u, 50u})
        appendBig(expected, number);
    const Bytes header = expected;
    expected.resize(256);
    append(expected, bytesOf({"\0\0\0\x05"
                              "abcde",
                              9}));
    append(expected, header);
    append(expected,
           bytesOf({"\0\0\0\0\0\0\0\0\0\x1C\0\x32\0\0icns\0\0\0\x0A\xBF\xB9\xFF\xFF\0\0\0\0\0\0\0\0", 34}));

    const auto fork = encodeResourceFork(icon);
    ASSERT_TRUE(fork);
    EXPECT_EQ(*fork, expected);
}

TEST(ResourceFork, ReadsBackEveryResourceByType) {
    const Bytes fork = variedFork();
    const auto resources = parseResourceFork(fork);
    ASSERT_TRUE(resources);
    std::vector<std::string> found;
    for (const Resource& resource : *resources)
        found.push_back(std::to_string(resource.id) + " " + resource.name.value_or("-") + " " +
                        std::to_string(resource.attributes) + " " + std::string(textOf(resource.data)));
    EXPECT_THAT(found, testing::ElementsAre("-16455 - 0 icon", "128 Notes 32 first text",
                                            "129 More 0 second text", "7  0 "));
    EXPECT_EQ(*encodeResourceFork(*resources), fork);
}

TEST(AppleDouble, KeepsExtendedAttributesAndWritesABlankFork) {
    AppleDouble content;
    content.finderInfo[8] = 4;
    content.attributes = Bytes(17, 'a');
    const Bytes file = encodeAppleDouble(content);
    EXPECT_EQ(file.size(), 50u + 32u + 17u + 286u) << "a Mac's companion without a fork";
    EXPECT_THAT(std::string(textOf(file)),
                testing::HasSubstr("This resource fork intentionally left blank   "));
    const auto read = decodeAppleDouble(file);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, content);
}

TEST(AppleDouble, SurvivesEveryTruncationAndEveryFlippedBit) {
    AppleDouble content;
    content.resourceFork = variedFork();
    const Bytes whole = encodeAppleDouble(content);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeAppleDouble(ByteView(whole).first(length))) << length;

    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        Bytes flipped = whole;
        flipped[bit / 8] ^= static_cast<std::uint8_t>(1u << (bit % 8));
        const auto read = decodeAppleDouble(flipped);
        if (!read)
            continue;
        const auto resources = parseResourceFork(read->resourceFork);
        for (const Resource& resource : resources ? *resources : std::vector<Resource>())
            EXPECT_LE(resource.data.size(), read->resourceFork.size()) << bit;
    }
}

} // namespace tavrik::practice
