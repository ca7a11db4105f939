#include "runtime/frame.h"
#include "tests/support/balance.h"
#include "ui/pane.h"

#include <gtest/gtest.h>

namespace tavrik {
namespace {

struct CountingPane : Class<CountingPane, _Pane> {
    static const ClassDefinition& definition();

    std::int32_t moves;
};

void count_move(CountingPane* self, std::int32_t, std::int32_t) { ++self->moves; }

constexpr OperationRow kOperations[] = {
    overrides<CountingPane, &_Pane::HandleMouseMove, count_move>("HandleMouseMove"),
};

const ClassDefinition& CountingPane::definition() {
    static constexpr ClassDefinition kDefinition =
        define<CountingPane>({.layer = Layer::kApplication, .operations = kOperations});
    return kDefinition;
}

template <class Pane>
Ref<Pane> add(_Pane& parent, std::int32_t left, std::int32_t width) {
    Ref<Pane> pane = make<Pane>();
    pane->mLeft = left;
    pane->mWidth = pane->mHeight = width;
    parent.mChildren->append(pane);
    return pane;
}

TEST(PaneMoves, Reach_all_that_they_concern_and_no_state_is_lost_on_the_rest) {
    const test::Balance balance;
    const Ref<_Pane> root = make<_Pane>();
    const Ref<_Pane> far = add<_Pane>(*root.get(), 100, 10);
    const Ref<_Pane> inside_far = add<_Pane>(*far.get(), -100, 20);  // where its parent isn't
    const Ref<CountingPane> counting = add<CountingPane>(*root.get(), 200, 10);

    root->HandleMouseMove(5, 5);
    EXPECT_FALSE(far->mMouseWasInBounds);
    EXPECT_TRUE(inside_far->mMouseWasInBounds);
    root->HandleMouseMove(105, 5);
    EXPECT_TRUE(far->mMouseWasInBounds);
    EXPECT_FALSE(inside_far->mMouseWasInBounds);
    root->HandleMouseMove(500, 5);
    EXPECT_FALSE(far->mMouseWasInBounds);
    EXPECT_EQ(counting->moves, 3);

    root->mChildren->append(nullptr);
    EXPECT_THROW(root->HandleMouseMove(5, 5), RaisedException);
}

}  // namespace
}  // namespace tavrik
