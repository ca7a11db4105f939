#pragma once

#include <tavrik/class_record.h>

#include <gtest/gtest.h>

namespace tavrik::test {

// As many objects are alive at its end as at its start.
class Balance {
public:
    Balance() = default;
    ~Balance() { EXPECT_EQ(RuntimeLiveObjects(), before_) << "objects made and objects released differ"; }
    Balance(const Balance&) = delete;
    Balance& operator=(const Balance&) = delete;

private:
    const std::int64_t before_ = RuntimeLiveObjects();
};

}  // namespace tavrik::test
