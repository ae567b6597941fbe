#include "icons/IconShapeAnalysis.h"

#include "model/SettingsManager.h"
#include "model/SquircleOutline.h"
#include "platform/Icns.h"
#include "practice/furnish/Furnish.h"
#include "practice/furnish/SampleApps.h"
#include "support/SmallMac.h"
#include "support/WaitFor.h"
#include "system/IconManager.h"
#include "themes/Application.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavrik {
namespace {

/// What one run of the program builds.
struct Program {
    explicit Program(Mac& mac) : icons(mac), settings(mac), analysis(icons, settings) {}

    void analyse(const std::vector<MacPath>& apps) {
        bool isFinished = false;
        analysis.analyse(apps, &context, {}, [&] { isFinished = !analysis.isAnalysing(); });
        EXPECT_TRUE(test::waitFor([&] { return QCoreApplication::processEvents(), isFinished; }));
    }

    plist::Dictionary stored() { return *settings.loadSettings()["IconShapeCache"].as<plist::Dictionary>(); }

    IconManager icons;
    SettingsManager settings;
    IconShapeAnalysis analysis;
    QObject context;
};

struct IconShapeAnalysisTest : testing::Test {
    void put(const MacPath& app, bool isSquircle, int side) {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        ASSERT_TRUE(small.files.createFolder(app / "Contents/Resources"));
        ASSERT_TRUE(small.files.write(app / "Contents/Resources/icon.icns",
                                      icns::encode(isSquircle ? maskedToSquircle(image) : image)));
    }

    /// Of this kind, since they were last forgotten.
    std::ptrdiff_t operations(std::string_view name, std::string_view file) const {
        return std::ranges::count_if(small.files.journal(), [&](const std::string& line) {
            return line.starts_with(name) && line.ends_with(file);
        });
    }

    test::Application application;
    test::SmallMac small;
    const MacPath standard{"/Applications/Standard.app"};
    const MacPath square{"/Applications/Square.app"};
};

TEST_F(IconShapeAnalysisTest, DecodesAnIconOnceAndStoresARunInOneWrite) {
    const std::vector<MacPath> apps{standard, square, MacPath("/Applications/Bare.app")};
    put(standard, true, 256);
    put(square, false, 64);
    auto first = std::make_unique<Program>(small.mac);
    EXPECT_EQ(first->analysis.isSquircle(standard), std::nullopt);
    first->analyse(apps);
    EXPECT_EQ(first->analysis.isSquircle(standard), true);
    EXPECT_EQ(first->analysis.isSquircle(square), false);
    EXPECT_EQ(first->stored().size(), 3u);
    EXPECT_EQ(operations("replace", "AppSettings.plist"), 1);
    first.reset();

    Program second(small.mac);
    const plist::Dictionary shapes = second.stored();
    for (const auto& [key, answer] : shapes)
        second.settings.setIconShape(key, !*answer.as<bool>());
    small.files.forget();
    second.analyse(apps);
    EXPECT_EQ(operations("read ", ".icns") + operations("replace", ""), 0);
    EXPECT_EQ(second.analysis.isSquircle(standard), false) << "a stored answer is not doubted";

    put(standard, true, 512);
    for (const auto& [key, answer] : shapes)
        second.settings.setIconShape(key, "damaged");
    second.analyse(apps);
    EXPECT_EQ(second.analysis.isSquircle(standard), true) << "a changed icon";
    EXPECT_EQ(second.analysis.isSquircle(square), false) << "found anew";
    EXPECT_EQ(second.stored().size(), 4u);

    second.settings.setReadOnly();
    put(standard, false, 128);
    second.analyse(apps);
    small.files.forget();
    second.analyse(apps);
    EXPECT_EQ(operations("read ", ".icns"), 0) << "not even where nothing can be stored";
}

TEST_F(IconShapeAnalysisTest, TellsHowFarItIsAndStopsWhenItGoes) {
    put(square, false, 16);
    const std::vector<MacPath> many(400, square);
    auto program = std::make_unique<Program>(small.mac);
    std::vector<double> parts;
    int finished = 0;
    program->analysis.analyse(many, std::make_unique<QObject>().get(), {}, [&] { finished = 100; });
    program->analysis.analyse(
        many, &program->context, [&](double part) { parts.push_back(part); },
        [&] { finished += parts.back() == 1; });
    program->analyse({});
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(parts.size(), 50u);
    EXPECT_TRUE(std::ranges::is_sorted(parts));

    put(square, false, 32);
    small.files.forget();
    small.files.setRule([](const test::FileOperation& operation) {
        if (operation.path.string().ends_with(".icns"))
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return std::optional<int>();
    });
    program->analysis.analyse(many, &application.application, {}, [&] { finished = 0; });
    EXPECT_TRUE(test::waitFor([&] { return operations("read ", ".icns") > 0; }));
    program.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(finished, 1);
    EXPECT_LT(operations("readBeginning", ".icns"), std::ssize(many));
    EXPECT_EQ(Program(small.mac).stored().size(), 2u) << "what was found is kept";
}

TEST_F(IconShapeAnalysisTest, KnowsThePracticeMacsOwnOutlines) {
    using namespace practice;
    const HostPath root(small.folder.path().string() + "/furnished");
    ASSERT_TRUE(furnish(root, {}, {.largestIcon = 128}));
    PracticeMac mac(root);
    Program program(mac.mac());
    std::vector<MacPath> bundles;
    std::ranges::transform(sampleApps(), std::back_inserter(bundles), bundlePath);
    program.analyse(bundles);
    for (const SampleApp& app : sampleApps()) {
        // The plain icon of a bundle without one has the standard outline.
        const bool isPlain = app.icon == BundleIcon::catalogueOnly || app.icon == BundleIcon::none;
        EXPECT_EQ(program.analysis.isSquircle(bundlePath(app)), isPlain || app.outline == Outline::squircle)
            << app.name;
    }
}

} // namespace
} // namespace tavrik
