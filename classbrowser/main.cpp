#include "classbrowser/records.h"
#include "maptool/initialize.h"

#include <tavrik/runtime.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

bool print(const std::string& line) { return std::puts(line.c_str()) >= 0 && std::fflush(stdout) == 0; }

}  // namespace

int main(int count, char** arguments) {
    if (count != 2 || std::string_view(arguments[1]) != "--json") {
        std::fputs("usage: classbrowser --json\n", stderr);
        return 2;
    }
    tavrik::RuntimeInit();
    tavrik::initialize();
    const bool printed = print(tavrik::classbrowser::records_as_json());
    tavrik::finalize();
    const std::int32_t status = tavrik::RuntimeExit();
    if (!printed) {
        std::perror("classbrowser: the records could not be written to standard output");
        return 1;
    }
    std::exit(status);
}
