#include "platform/PropertyList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavrik::plist {

namespace {

std::string xml(std::string_view content) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + std::string(content) + "</plist>";
}

/// A binary list of hand-made objects with one-byte offsets and references; the first one is the root.
std::string binary(const std::vector<std::string>& objects) {
    std::string list = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += static_cast<char>(list.size());
        list += object;
    }
    const auto table = static_cast<char>(list.size());
    const std::string zeros(7, '\0');
    return list + offsets + std::string(6, '\0') + "\1\1" + zeros + static_cast<char>(objects.size()) + zeros +
           '\0' + zeros + table;
}

Result<Value> roundTrip(const Value& value, Format format) {
    const Result<Bytes> bytes = serialize(value, format);
    return bytes ? parse(*bytes) : Result<Value>(bytes.error());
}

std::string repeated(std::string_view text, std::size_t count) {
    std::string all;
    while (count-- > 0)
        all += text;
    return all;
}

const Value kEverything = Dictionary{
    {"", Array{}},
    {"array", Array{1, "two", Array{Dictionary{}}}},
    {"<&>\"'", "<&>\"' \t\n\r]]> caf\u00E9 \U0001F600 "},
    {"data", Bytes(200, 0xA7)},
    {"empty data", Bytes{}},
    {"empty text", ""},
    {"flags", Array{true, false}},
    {"integers", Array{0, 255, 65535, 1 << 24, -1, std::numeric_limits<std::int64_t>::min(),
                       std::numeric_limits<std::int64_t>::max(), std::uint64_t{1} << 63,
                       std::numeric_limits<std::uint64_t>::max()}},
    {"reals", Array{0.1, -0.0, 1e300, 5e-324, 1.0 / 3, 16777217.0, HUGE_VAL, -HUGE_VAL, -1.5, 123456789.123}},
    {"UIDs", Array{UID{0}, UID{70000}, UID{0xFFFFFFFF}}},
    {"whole dates", Array{Date{0}, Date{-978307201}, Date{8e9}, Date{-6e10}}},
};

} // namespace

TEST(PropertyList, KeepsEveryTypeInBothFormats) {
    for (const Format format : {Format::xml, Format::binary}) {
        const Result<Value> read = roundTrip(kEverything, format);
        ASSERT_TRUE(read) << read.error().description;
        EXPECT_EQ(*read, kEverything);
        EXPECT_TRUE(std::signbit(*read->find<Array>("reals")->at(1).as<double>()));
        EXPECT_TRUE(std::isnan(*roundTrip(std::nan(""), format)->as<double>()));
        EXPECT_EQ(*serialize(*read, format), *serialize(kEverything, format));
    }
}

TEST(PropertyList, KeepsEveryBitOfADateInBinaryAndWholeSecondsInXML) {
    for (const double seconds : {663768354.9034091, -0.25, -978307200.5, 1e300})
        EXPECT_EQ(*roundTrip(Date{seconds}, Format::binary), Value(Date{seconds}));
    EXPECT_EQ(*roundTrip(Date{-0.25}, Format::xml), Value(Date{-1}));
}

TEST(PropertyList, WritesXMLAsTheMacDoes) {
    const Value value = Dictionary{{"b", Array{Bytes{1, 2}}}, {"a", "x\r"}};
    EXPECT_EQ(textOf(*serialize(value, Format::xml)),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>a</key>
	<string>x&#13;</string>
	<key>b</key>
	<array>
		<data>
		AQI=
		</data>
	</array>
</dict>
</plist>
)");
}

TEST(PropertyList, ReadsWhatOthersWrite) {
    const std::pair<std::string, Value> cases[] = {
        {"\xEF\xBB\xBF" + xml("<true/>"), true},
        {xml("<!-- <dict> --><dict><key>a</key><!-- </dict> --><string>b<![CDATA[<array>]]>c</string></dict>"),
         Dictionary{{"a", "b<array>c"}}},
        {xml("<string>&#x1F600;&#13;&quot;</string>"), "\U0001F600\r\""},
        {xml("<array>\n  <integer>-0x10</integer><real>2</real><date>2001-01-01T00:00:05Z</date></array>"),
         Array{-16, 2.0, Date{5}}},
        {binary({{"\x22\x3F\xC0\x00\x00", 5}}), 1.5},                      // four bytes
        {binary({{"\x12\xFF\xFF\xFF\xFF", 5}}), std::int64_t{0xFFFFFFFF}}, // unsigned up to four bytes
        {binary({"\xA2\1\1", "\x5F\x10\1x"}), Array{"x", "x"}},            // shared, and a long count
        {binary({"\xD2\1\1\2\3", "\x51k", "\x51y", "\x51z"}), Dictionary{{"k", "z"}}}, // the key twice
    };
    for (const auto& [list, value] : cases) {
        const Result<Value> read = parse(bytesOf(list));
        ASSERT_TRUE(read) << read.error().description << ": " << list;
        EXPECT_EQ(*read, value) << list;
    }
}

TEST(PropertyList, RefusesWhatIsDamaged) {
    using namespace std::string_literals;
    const std::string cases[] = {
        "", " ", "garbage", "{ key = value; }", "bplist00", "<plist", "<dict/>", "<?xml", xml(""),
        xml("<array>"), xml("</array>"), xml("<true/><true/>"), xml("<null/>"), xml("<string>\xC3(</string>"),
        xml("<string>&#xD800;</string>"), xml("<string>a\0b</string>"s), xml("<string>&unknown;</string>"),
        xml("<dict><key>a\xFF</key><true/></dict>"), xml("<dict><true/></dict>"),
        xml("<array a=\"></array>\"><true/></array>"),
        // Text: invalid, with NUL, half a surrogate pair in three places; then a null, a set, a 65-bit number.
        binary({"\x51\xFF"}), binary({"\x53x\0y"s}), binary({"\x62\0x\0\0"s}), binary({"\x62\xD8\x3D\0x"s}),
        binary({"\x61\xDC\0"s}), binary({"\x61\xD8\0"s}), binary({"\0"s}), binary({"\xC1\1", "\x09"}),
        binary({"\x14" + std::string(7, '\0') + "\1" + std::string(8, '\0')}),
        // References to nothing, a key that is no text, a length beyond the file.
        binary({}), binary({"\xA1\1"}), binary({"\xA1\2", "\x09"}), binary({"\xD1\1\1", "\x09"}),
        binary({"\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})};
    for (const std::string& list : cases)
        EXPECT_FALSE(parse(bytesOf(list))) << list;
}

TEST(PropertyList, RefusesAFileCutShortAtAnyByteAndSurvivesEveryChangedOne) {
    for (const Format format : {Format::xml, Format::binary}) {
        const Bytes whole = *serialize(kEverything, format);
        for (std::size_t size = 0; size + 1 < whole.size(); ++size)
            EXPECT_FALSE(parse(ByteView(whole).first(size))) << size;
    }
    const Bytes whole =
        *serialize(Dictionary{{"k", Array{Date{1.5}, -1, "\u00E9", UID{1}, 0.1}}}, Format::binary);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        for (const int change : {0x01, 0x10, 0x80, 0xFF}) {
            Bytes damaged = whole;
            damaged[i] = static_cast<std::uint8_t>(damaged[i] ^ change);
            const Result<Value> read = parse(damaged);
            EXPECT_TRUE(!read || serialize(*read, Format::binary)) << i;
        }
    }
}

TEST(PropertyList, WritesEqualValuesOnceHoweverMany) {
    const Array many(70'000, Bytes(1000, 'x'));
    const Bytes list = *serialize(many, Format::binary);
    EXPECT_LT(list.size(), many.size() + 1200);
    EXPECT_EQ(*serialize(*parse(list), Format::binary), list);
}

TEST(PropertyList, KeepsTheDepthLimitBothWays) {
    const Limits limits{.depth = 5};
    for (const Format format : {Format::xml, Format::binary}) {
        Value nested = Array{};
        for (std::size_t depth = 1; depth <= 6; ++depth) {
            EXPECT_EQ(bool(parse(*serialize(nested, format), limits)), depth <= 5);
            EXPECT_EQ(bool(serialize(nested, format, limits)), depth <= 5);
            nested = Array{nested};
        }
    }
}

TEST(PropertyList, RefusesNestingThatWouldEndTheStackAndEntitiesThatWouldTakeMinutes) {
    constexpr std::size_t depth = 1'000'000;
    EXPECT_FALSE(parse(bytesOf(xml("<string>" + repeated("&amp;", depth) + "</string>"))));
    EXPECT_FALSE(parse(bytesOf(xml(repeated("<array>", depth)))));
    EXPECT_FALSE(parse(bytesOf(xml(repeated("<dict><key>k</key><!-- </dict> -->", depth)))));
    EXPECT_FALSE(parse(bytesOf(xml(repeated("<array a=\"></array>\">", depth)))));
}

TEST(PropertyList, RefusesObjectsThatHoldThemselvesOrUnfoldWithoutEnd) {
    EXPECT_FALSE(parse(bytesOf(binary({std::string("\xA1\0", 2)}))));
    EXPECT_FALSE(parse(bytesOf(binary({"\xA1\1", std::string("\xA1\0", 2)}))));

    std::vector<std::string> doubling;
    for (char next = 1; next <= 40; ++next)
        doubling.push_back("\xA2" + std::string(2, next));
    doubling.push_back("\x09");
    EXPECT_FALSE(parse(bytesOf(binary(doubling))));

    const std::string manyTexts = binary({"\xA3\1\1\1", "\x5Atenletters"});
    EXPECT_TRUE(parse(bytesOf(manyTexts), {.bytes = 200, .values = 4}));
    EXPECT_FALSE(parse(bytesOf(manyTexts), {.bytes = 200, .values = 3}));
}

TEST(PropertyList, RefusesToWriteWhatTheFormatCannotHold) {
    const Value textOnlyBinaryHolds[] = {"\x01", "\uFFFE", Dictionary{{"\b", 1}}, Date{1e300}, Date{NAN}};
    for (const Value& value : textOnlyBinaryHolds) {
        EXPECT_FALSE(serialize(value, Format::xml));
        EXPECT_TRUE(serialize(value, Format::binary));
    }
    const Value neither[] = {"\xC0\x80",
                             "\xED\xA0\x80",
                             "\xE2\x82",
                             std::string("a\0b", 3),
                             Dictionary{{"\xFF", 1}},
                             Array{UID{0x1'0000'0000}}};
    for (const Value& value : neither) {
        EXPECT_FALSE(serialize(value, Format::xml));
        EXPECT_FALSE(serialize(value, Format::binary));
    }
}

} // namespace tavrik::plist
