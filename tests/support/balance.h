#pragma once

#include "introspection/type_codes.h"

#include <tavrik/class_record.h>

#include <gtest/gtest.h>

namespace tavrik::test {

// As many objects are alive at its end as at its start.
class Balance {
public:
    Balance() = default;
    ~Balance() { EXPECT_EQ(count(), before_) << "objects made and objects released differ"; }
    Balance(const Balance&) = delete;
    Balance& operator=(const Balance&) = delete;

private:
    // Type information lives to the end of the program, so what there is of it isn't counted.
    static std::int64_t count() {
        Introspection::release_types();
        return RuntimeLiveObjects();
    }

    const std::int64_t before_ = count();
};

}  // namespace tavrik::test
