#include "toolkit/fronts/qt/fitting.h"

#include <gtest/gtest.h>

namespace tavrik::front::qt {
namespace {

const QRect kUpper(20, 20, 100, 20);
const QRect kMiddle(20, 52, 100, 20);
const QRect kLower(20, 84, 100, 20);

TEST(QtFitting, A_taller_control_keeps_its_middle_except_at_an_edge) {
    EXPECT_EQ(fit_height({kMiddle, kUpper, kLower}, 0, 26, 119), QRect(20, 49, 100, 26));
    EXPECT_EQ(fit_height({kMiddle, kUpper, kLower}, 0, 18, 119), kMiddle);
    EXPECT_EQ(fit_height({kMiddle, {120, 20, 50, 20}}, 0, 60, 119).height(), 60);
    EXPECT_EQ(fit_height({{20, 0, 100, 20}}, 0, 30, 119), QRect(20, 0, 100, 30));
    EXPECT_EQ(fit_height({{20, 99, 100, 20}}, 0, 30, 119), QRect(20, 89, 100, 30));
}

TEST(QtFitting, Two_neighbours_that_both_grow_stay_apart) {
    const QRect upper = fit_height({kUpper, kMiddle, kLower}, 0, 60, 119);
    const QRect middle = fit_height({kMiddle, kUpper, kLower}, 0, 60, 119);
    EXPECT_EQ(middle.top() - (upper.top() + upper.height()), kLeastGap);
    EXPECT_EQ(middle.height(), 30);
}

TEST(QtFitting, A_wider_control_grows_to_the_right_where_all_of_the_width_is_there) {
    EXPECT_EQ(fit_width({kUpper, kMiddle, {180, 20, 50, 20}}, 0, 150, 290), QRect(20, 20, 150, 20));
    EXPECT_EQ(fit_width({kUpper, {160, 30, 50, 20}}, 0, 150, 290), kUpper);
    EXPECT_EQ(fit_width({kUpper}, 0, 150, 169), kUpper);
}

}  // namespace
}  // namespace tavrik::front::qt
