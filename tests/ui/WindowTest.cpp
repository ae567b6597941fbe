#include "UiStage.h"

namespace tavrik::test {

class WindowTest : public UiStage {};

TEST_F(WindowTest, OpensWithoutAComplaint) {
    start();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_FALSE(settled(window()).isNull());
}

} // namespace tavrik::test
