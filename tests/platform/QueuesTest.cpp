#include "platform/MainQueue.h"
#include "platform/SerialQueue.h"
#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

class MainQueueTest : public testing::Test {
protected:
    bool processUntil(const std::function<bool()>& predicate) {
        return waitFor([&] {
            QCoreApplication::processEvents();
            return predicate();
        });
    }

    int argc = 1;
    char name[6] = "tests";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    SerialQueue worker{"worker"};
};

} // namespace

TEST_F(MainQueueTest, RunsWorksOnTheMainThreadInOrderAndDropsThoseOfContextsThatAreGone) {
    QObject first;
    QObject second;
    auto gone = std::make_unique<QObject>();
    std::vector<int> ran;
    std::vector<QThread*> threads;
    const auto post = [&](QObject* context, int number) {
        MainQueue::async(context, [&, number] {
            ran.push_back(number);
            threads.push_back(QThread::currentThread());
        });
    };
    worker.sync([&] {
        post(&first, 1);
        post(gone.get(), 2);
        post(&second, 3);
        post(nullptr, 4);
        post(&first, 5);
    });
    gone.reset();
    ASSERT_TRUE(ran.empty());
    ASSERT_TRUE(processUntil([&] { return ran.size() >= 3; }));
    EXPECT_THAT(ran, ElementsAre(1, 3, 5));
    EXPECT_THAT(threads, testing::Each(application.thread()));
}

TEST_F(MainQueueTest, SyncWaitsForTheMainThreadAndRunsAtOnceOnIt) {
    QThread* ranOn = nullptr;
    bool seen = false;
    bool done = false;
    worker.async([&] {
        MainQueue::sync([&] { ranOn = QThread::currentThread(); });
        seen = ranOn != nullptr;
        MainQueue::async(&application, [&] { done = true; });
    });
    ASSERT_TRUE(processUntil([&] { return done; }));
    EXPECT_TRUE(seen);
    EXPECT_EQ(ranOn, application.thread());

    MainQueue::sync([&] { ranOn = nullptr; });
    EXPECT_EQ(ranOn, nullptr);
}

TEST(SerialQueue, RunsInOrderOnOneThreadAndFinishesBeforeItGoes) {
    std::vector<int> ran;
    std::vector<std::thread::id> threads;
    {
        SerialQueue queue("ordered");
        for (int i = 0; i < 100; ++i) {
            queue.async([&, i] {
                ran.push_back(i);
                threads.push_back(std::this_thread::get_id());
            });
        }
        queue.sync([&] { EXPECT_EQ(ran.size(), 100u); });
        queue.async([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            queue.async([&] { ran.push_back(100); });
        });
    }
    EXPECT_EQ(ran.size(), 101u);
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
    EXPECT_THAT(threads, testing::Each(threads.front()));
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

TEST(SerialQueueDeathTest, EndsTheProcessRatherThanWaitForItself) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SerialQueue queue("com.tavrik.knot");
    EXPECT_DEATH(queue.sync([&] { queue.sync([] {}); }), "com.tavrik.knot would wait for itself");
}

} // namespace tavrik::test
