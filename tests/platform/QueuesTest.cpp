#include "platform/ConcurrentQueue.h"
#include "platform/MainQueue.h"
#include "platform/SerialQueue.h"
#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <set>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

class MainQueueTest : public testing::Test {
protected:
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
    const auto post = [&](QObject* context, int number) {
        MainQueue::async(context, [&, number] {
            ran.push_back(number);
            EXPECT_EQ(QThread::currentThread(), application.thread());
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
    QCoreApplication::processEvents();
    EXPECT_THAT(ran, ElementsAre(1, 3, 5));
}

TEST_F(MainQueueTest, AnswersAWorkersCallerThatMayBeGoneWhenTheAnswerComes) {
    QObject alive;
    auto gone = std::make_unique<QObject>();
    std::vector<int> ran;
    const QPointer<QObject> first(&alive);
    const QPointer<QObject> second(gone.get());
    gone.reset();
    worker.sync([&] {
        MainQueue::async(second, [&] { ran.push_back(2); });
        MainQueue::async(first, [&] { ran.push_back(1); });
    });
    QCoreApplication::processEvents();
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(MainQueueTest, SyncWaitsForTheMainThreadAndRunsAtOnceOnIt) {
    QThread* ranOn = nullptr;
    std::atomic<bool> waited = false;
    worker.async([&] {
        MainQueue::sync([&] { ranOn = QThread::currentThread(); });
        waited = ranOn != nullptr;
    });
    EXPECT_TRUE(waitFor([&] {
        QCoreApplication::processEvents();
        return waited.load();
    }));
    EXPECT_EQ(ranOn, application.thread());

    MainQueue::sync([&] { ranOn = nullptr; });
    EXPECT_EQ(ranOn, nullptr);
}

TEST(SerialQueue, RunsInOrderOnOneThreadAndFinishesBeforeItGoes) {
    std::vector<int> ran;
    std::set<std::thread::id> threads;
    {
        SerialQueue queue("ordered");
        for (int i = 0; i < 100; ++i) {
            queue.async([&, i] {
                ran.push_back(i);
                threads.insert(std::this_thread::get_id());
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
    EXPECT_EQ(threads.size(), 1u);
    EXPECT_FALSE(threads.contains(std::this_thread::get_id()));
}

TEST(SerialQueueDeathTest, EndsTheProcessRatherThanWaitForItself) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SerialQueue queue("com.tavrik.knot");
    EXPECT_DEATH(queue.sync([&] { queue.sync([] {}); }), "com.tavrik.knot would wait for itself");
}

TEST(ConcurrentQueue, StartsWorksInTheOrderOfAdding) {
    std::vector<int> ran;
    {
        ConcurrentQueue queue("narrow", 1);
        for (int i = 0; i < 100; ++i)
            queue.async([&, i] { ran.push_back(i); });
    }
    EXPECT_EQ(ran.size(), 100u);
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST(ConcurrentQueue, RunsAsManyWorksSideBySideAsItIsWideAndNoMore) {
    constexpr int kWidth = 3;
    std::atomic<int> running = 0;
    std::atomic<bool> exceeded = false;
    ConcurrentQueue queue("wide", kWidth);
    for (int round = 0; round < 2; ++round) { // with new threads, then with idle ones
        std::latch together(kWidth);
        std::atomic<int> finished = 0;
        for (int i = 0; i < 2 * kWidth; ++i) {
            queue.async([&, i] {
                if (++running > kWidth)
                    exceeded = true;
                if (i < kWidth)
                    together.arrive_and_wait();
                --running;
                ++finished;
            });
        }
        ASSERT_TRUE(waitFor([&] { return finished == 2 * kWidth; }));
    }
    EXPECT_FALSE(exceeded);
}

TEST(ConcurrentQueue, RunsWhatIsQueuedBeforeItGoesAndWhatThatAdds) {
    std::atomic<int> ran = 0;
    {
        ConcurrentQueue queue("leaving", 2);
        for (int i = 0; i < 50; ++i) {
            queue.async([&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                queue.async([&] { ++ran; });
            });
        }
    }
    EXPECT_EQ(ran, 50);
}

} // namespace tavrik::test
