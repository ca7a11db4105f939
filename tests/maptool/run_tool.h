#pragma once

#include "tests/maptool/scripted_front.h"

#include <gtest/gtest.h>

namespace tavrik {

// Runs the tool from its first to its last call, with the script as the person, who quits at its end if not before.
// Returns the exit status.
int run_tool(ScriptedFront::Script script);
// The same on a front that the caller has prepared, whose script is run as it is.
int run_tool(std::unique_ptr<ScriptedFront> front);

// Whatever a test does with the tool, all objects are gone at its end.
class ToolTest : public testing::Test {
protected:
    void TearDown() override;
};

}  // namespace tavrik
