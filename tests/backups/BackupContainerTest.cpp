#include "backups/BackupContainer.h"

#include "backups/BackupArchive.h"
#include "platform/PropertyList.h"
#include "platform/Random.h"
#include "support/LogRecorder.h"
#include "support/NumberedMachine.h"

#include <QByteArray>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik {
namespace {

struct FixedRandom : Random {
    Bytes bytes(std::size_t count) override { return Bytes(count, 0xA5); }
};

struct BackupContainerTest : testing::Test {
    Bytes text(std::size_t size) { return m_random.bytes(size); }

    bool isRefused(Bytes container) {
        m_log.clear();
        return !m_container.open(std::move(container)) && m_log.lines().size() == 1 &&
               m_log.lines()[0].starts_with("Failed to decrypt backup: ");
    }

    test::LogRecorder m_log;
    test::NumberedMachine m_machine{"C02TAVRIK001"};
    SystemRandom m_random;
    const BackupContainer m_container{m_machine, m_random};
};

TEST_F(BackupContainerTest, IsTheOneThatAnotherLibraryMakes) {
    FixedRandom fixed;
    const auto archive = bytesOf("the Dock and Launchpad");
    const auto sealed = BackupContainer(m_machine, fixed).seal(Bytes(archive.begin(), archive.end()));
    ASSERT_TRUE(sealed);
    EXPECT_EQ(
        QByteArray(reinterpret_cast<const char*>(sealed->data()), 50).toHex().toStdString(),
        "a5a5a5a5a5a5a5a5a5a5a5a5c51cdbd3c1bb11e351e31d7dffe9f07e719c1fb641a2edd37b77d41b01924a36abf7331d561f");
}

TEST_F(BackupContainerTest, OpensToWhatWasSealedInTheSameMemory) {
    constexpr std::size_t kPiece = 16384; // the text moves in such pieces: the edges are around their ends
    for (const std::size_t size : {0ul, 1ul, 11ul, 12ul, 13ul, kPiece - 1, kPiece, kPiece + 1, kPiece + 12,
                                   kPiece + 13, 3 * kPiece - 5, 5 * kPiece, 1000003ul}) {
        for (const std::size_t room : {0ul, BackupContainer::kOverhead}) {
            const Bytes archive = text(size);
            Bytes roomy = archive;
            roomy.reserve(size + room);
            const auto* memory = roomy.data();
            auto sealed = m_container.seal(std::move(roomy));
            ASSERT_TRUE(sealed && sealed->size() == size + BackupContainer::kOverhead);
            EXPECT_TRUE(room == 0 || sealed->data() == memory) << "copied";
            memory = sealed->data();
            EXPECT_NE(sealed, m_container.seal(archive)) << "a nonce of its own";
            const auto opened = m_container.open(std::move(*sealed));
            ASSERT_TRUE(opened && *opened == archive) << size;
            EXPECT_EQ(opened->data(), memory) << "copied";
        }
    }
}

TEST_F(BackupContainerTest, DoesNotOpenWithAnyByteFlippedOrAnyLengthCutOrElsewhere) {
    const Bytes sealed = *m_container.seal(text(100));
    for (std::size_t i = 0; i < sealed.size(); ++i) {
        Bytes flipped = sealed;
        flipped[i] = static_cast<std::uint8_t>(flipped[i] ^ (1u << (i % 8)));
        EXPECT_TRUE(isRefused(flipped)) << "byte " << i;
        EXPECT_TRUE(isRefused(Bytes(sealed.begin(), sealed.begin() + static_cast<std::ptrdiff_t>(i)))) << i;
    }
    m_machine.serial = "C02TAVRIK002";
    EXPECT_TRUE(isRefused(sealed));

    m_machine.serial.reset();
    m_log.clear();
    EXPECT_FALSE(m_container.seal(text(10)) || m_container.open(sealed));
    EXPECT_THAT(m_log.lines(),
                testing::ElementsAre("Failed to get device serial", "Failed to derive encryption key",
                                     "Failed to get device serial", "Failed to derive backup key"));
}

TEST_F(BackupContainerTest, TakesAnArchiveWithoutCopyingIt) {
    auto archive = createArchive({{kDockMember, text(5000)}, {kLaunchpadMember, text(70000)}});
    const auto* memory = archive->data();
    EXPECT_EQ(m_container.seal(std::move(*archive))->data(), memory);
    EXPECT_FALSE(createArchive({{"not\xFFUTF-8", {}}}));
    EXPECT_TRUE(m_log.lines().back().starts_with("Failed to create archive: "));
    EXPECT_FALSE(extractArchive(*plist::serialize(plist::Dictionary{{"a", "text"}}, plist::Format::binary)));
    EXPECT_TRUE(m_log.lines().back().starts_with("Failed to extract archive: "));
}

} // namespace
} // namespace tavrik
