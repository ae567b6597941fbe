#include "app/VersionGate.h"

#include "changes/apply/ApplyStage.h"
#include "platform/Machine.h"

namespace tavrik::test {

TEST(VersionGate, RefusesSystemsThatAreTooNewByWhateverNumberTheyGive) {
    struct VersionedMachine : Machine {
        explicit VersionedMachine(SystemVersion number) : version(number) {}

        std::optional<std::string> serialNumber() const override { return std::nullopt; }

        SystemVersion systemVersion() const override { return version; }

        SystemVersion version;
    };

    const std::tuple<SystemVersion, bool, std::string> cases[] = {
        {{13, 6, 9}, true, ""},        {{15, 7, 1}, true, ""},        {{25, 9, 9}, true, ""},
        {{16, 0, 0}, false, "16.0.0"}, {{26, 0, 1}, false, "26.0.1"}, {{27, 3, 0}, false, "27.3.0"},
    };
    for (const auto& [version, passes, text] : cases) {
        PreparedAnswers alerts;
        EXPECT_EQ(passesVersionGate(VersionedMachine(version), alerts), passes) << text;
        ASSERT_EQ(alerts.asked.size(), passes ? 0U : 1U);
        if (passes)
            continue;
        EXPECT_EQ(alerts.asked[0].title, "Unsupported macOS Version");
        EXPECT_EQ(alerts.asked[0].text,
                  "Unfortunately your current macOS version (" + text +
                      ") is not supported by Tavrik.\n\nPlease return on macOS 15 Seqouia "
                      "or earlier to continue.");
        EXPECT_THAT(alerts.asked[0].buttons, testing::ElementsAre("Quit"));
    }
}

} // namespace tavrik::test
