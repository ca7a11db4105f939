#include "tests/maptool/run_tool.h"

#include "maptool/initialize.h"
#include "maptool/start.h"
#include "toolkit/core/program.h"

#include <tavrik/runtime.h>

namespace tavrik {

int run_tool(std::unique_ptr<ScriptedFront> front) {
    core::use_front(std::move(front));
    RuntimeInit();
    initialize();
    _Main();
    finalize();
    return RuntimeExit();
}

int run_tool(ScriptedFront::Script script) {
    bool was_run = false;
    const int status = run_tool(std::make_unique<ScriptedFront>([&](ScriptedFront& front) {
        was_run = true;
        script(front);
        core::quit();
    }));
    EXPECT_TRUE(was_run);
    return status;
}

void ToolTest::TearDown() { EXPECT_EQ(RuntimeLiveObjects(), 0); }

}  // namespace tavrik
