#include "data/thread.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&Thread::Run, threadRun>("Run"),
    operation<&Thread::Suspend, ThreadSuspend>("Suspend"),
    operation<&Thread::Resume, ThreadResume>("Resume"),
    operation<&Thread::Sleep, ThreadSleep>("Sleep"),
    operation<&Thread::Kill, ThreadKill>("Kill"),
    operation<&Thread::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&Thread::StackSize, &Thread::set_StackSize>("StackSize"),
    property<&Thread::ThreadID>("ThreadID"),
    property<&Thread::Priority, &Thread::set_Priority>("Priority"),
    property<&Thread::State>("State"),
};

constexpr EventRow kEvents[] = {
    event("Run", Thread::Events::Run),
};

}  // namespace

const ClassDefinition& Thread::definition() {
    static constexpr ClassDefinition kDefinition = define<Thread>({
        .init = init_forwards_to<Thread, ThreadInitializer>,
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
