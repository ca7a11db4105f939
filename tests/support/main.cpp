#include "maptool/initialize.h"

#include <tavrik/runtime.h>

#include <gtest/gtest.h>

namespace {

class Classes : public testing::Environment {
    void SetUp() override {
        tavrik::RuntimeInit();
        tavrik::initialize();
    }
    void TearDown() override { tavrik::finalize(); }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new Classes);
    return RUN_ALL_TESTS();
}
