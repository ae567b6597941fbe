#include "backups/BackupContainer.h"

#include "backups/BackupArchive.h"
#include "backups/BackupKey.h"
#include "platform/PropertyList.h"
#include "platform/Random.h"
#include "support/LogRecorder.h"
#include "support/NumberedMachine.h"
#include "tests/backups/Hex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>

namespace tavrik {

namespace {

/// Counts up from zero: the nonce of the known answer.
struct CountingRandom : Random {
    Bytes bytes(std::size_t count) override {
        Bytes result(count);
        std::iota(result.begin(), result.end(), std::uint8_t{0});
        return result;
    }
};

Bytes text(std::size_t size) {
    Bytes bytes(size);
    std::uint32_t state = 1;
    for (auto& byte : bytes)
        byte = static_cast<std::uint8_t>((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

class BackupContainerTest : public testing::Test {
protected:
    test::LogRecorder m_log;
    test::NumberedMachine m_machine{"C02TAVRIK001"};
    SystemRandom m_random;
    const BackupContainer m_container{m_machine, m_random};
};

} // namespace

// Computed with another library.
TEST_F(BackupContainerTest, IsTheKnownOneForAKnownSerialNumberAndNonce) {
    CountingRandom counting;
    const auto key = deriveBackupKey(m_machine);
    ASSERT_TRUE(key);
    EXPECT_EQ(test::hex(key->bytes()), "022235852188652b8475a72ccc72378ceab5aebac50961812a6c857e5337a585");
    const auto archive = bytesOf("the Dock and Launchpad");
    const auto sealed = BackupContainer(m_machine, counting).seal(Bytes(archive.begin(), archive.end()));
    ASSERT_TRUE(sealed);
    EXPECT_EQ(
        test::hex(*sealed),
        "000102030405060708090a0bf83006d031c1d8bc876545ac0cf30edec92d55340453c7d226bf7d0e1ea4db91ab828ca41e94");
}

TEST_F(BackupContainerTest, OpensToWhatWasSealedWhateverTheSizeAndTheRoom) {
    constexpr std::size_t kChunk = 16384; // the moving goes by such pieces; the edges are around their ends
    for (const std::size_t size :
         {0ul, 1ul, 11ul, 12ul, 13ul, 28ul, kChunk - 1, kChunk, kChunk + 1, kChunk + 11, kChunk + 12,
          kChunk + 13, 3 * kChunk - 5, 5 * kChunk, 1000003ul}) {
        for (const std::size_t room : {0ul, BackupContainer::kOverhead}) {
            const Bytes archive = text(size);
            Bytes given;
            given.reserve(size + room);
            given.assign(archive.begin(), archive.end());
            const auto* memory = given.data();
            auto sealed = m_container.seal(std::move(given));
            ASSERT_TRUE(sealed) << size;
            EXPECT_EQ(sealed->size(), size + BackupContainer::kOverhead);
            EXPECT_TRUE(room == 0 || sealed->data() == memory) << "copied";
            memory = sealed->data();
            const auto opened = m_container.open(std::move(*sealed));
            ASSERT_TRUE(opened) << size;
            EXPECT_TRUE(*opened == archive) << size;
            EXPECT_EQ(opened->data(), memory) << "copied";
        }
    }
}

TEST_F(BackupContainerTest, DiffersEachTimeAndOpensAllTheSame) {
    const Bytes archive(200, 'a');
    const Bytes first = *m_container.seal(archive);
    const Bytes second = *m_container.seal(archive);
    std::size_t equal = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        equal += first[i] == second[i];
    EXPECT_LT(equal, 20) << "of 228, where chance makes it 1";
    EXPECT_EQ(m_container.open(first), archive);
    EXPECT_EQ(m_container.open(second), archive);
}

TEST_F(BackupContainerTest, DoesNotOpenWithAnyByteFlippedOrAnyLengthCut) {
    const Bytes sealed = *m_container.seal(text(100));
    std::size_t refused = 0;
    const auto isRefused = [&](Bytes container) {
        const bool opened = m_container.open(std::move(container)).has_value();
        ++refused;
        return !opened && m_log.lines().size() == refused &&
               m_log.lines().back().starts_with("Failed to decrypt backup: ");
    };
    for (std::size_t i = 0; i < sealed.size(); ++i) {
        for (const int bit : {0x01, 0x80}) {
            Bytes flipped = sealed;
            flipped[i] = static_cast<std::uint8_t>(flipped[i] ^ bit);
            EXPECT_TRUE(isRefused(flipped)) << "byte " << i;
        }
        EXPECT_TRUE(isRefused(Bytes(sealed.begin(), sealed.begin() + static_cast<std::ptrdiff_t>(i)))) << i;
    }
    Bytes longer = sealed;
    longer.push_back(0);
    EXPECT_TRUE(isRefused(longer));
    const test::NumberedMachine otherMachine("C02TAVRIK002");
    EXPECT_FALSE(BackupContainer(otherMachine, m_random).open(sealed));
    EXPECT_TRUE(m_log.lines().back().starts_with("Failed to decrypt backup: "));
}

TEST_F(BackupContainerTest, NeitherSealsNorOpensWithoutASerialNumber) {
    const Bytes sealed = *m_container.seal(text(10));
    m_machine.serial.reset();
    EXPECT_FALSE(m_container.seal(text(10)));
    EXPECT_FALSE(m_container.open(sealed));
    EXPECT_EQ(m_log.lines(),
              (std::vector<std::string>{"Failed to get device serial", "Failed to derive encryption key",
                                        "Failed to get device serial", "Failed to derive backup key"}));
}

TEST_F(BackupContainerTest, TakesAnArchiveAsItWasMade) {
    const ArchiveMembers members{{kDockMember, text(5000)}, {kLaunchpadMember, text(70000)}, {"empty", {}}};
    auto archive = createArchive(members);
    ASSERT_TRUE(archive);
    EXPECT_EQ(textOf(*archive).substr(0, 8), "bplist00");
    const auto* memory = archive->data();
    auto sealed = m_container.seal(std::move(*archive));
    ASSERT_TRUE(sealed);
    EXPECT_EQ(sealed->data(), memory) << "copied";
    EXPECT_EQ(extractArchive(*m_container.open(std::move(*sealed))), members);
}

TEST_F(BackupContainerTest, FindsNoArchiveInOtherLists) {
    for (const plist::Value& list :
         {plist::Value(plist::Array{Bytes{1}}), plist::Value(plist::Dictionary{{"a", Bytes{1}}, {"b", "text"}}),
          plist::Value("text")}) {
        m_log.clear();
        EXPECT_FALSE(extractArchive(*plist::serialize(list, plist::Format::binary)));
        ASSERT_EQ(m_log.lines().size(), 1);
        EXPECT_TRUE(m_log.lines()[0].starts_with("Failed to extract archive: ")) << m_log.lines()[0];
    }
    const Bytes archive = *createArchive({{"name", text(20)}});
    for (std::size_t size = 0; size < archive.size(); ++size)
        EXPECT_FALSE(extractArchive(ByteView(archive).first(size))) << size;
    m_log.clear();
    EXPECT_FALSE(createArchive({{"not\xFFUTF-8", {}}}));
    EXPECT_TRUE(m_log.mentions("Failed to create archive: "));
}

} // namespace tavrik
