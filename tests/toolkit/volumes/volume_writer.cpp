// Changes a volume until it is killed: volume_writer <volume> <seed>. Each change that is done is told by a byte.
#include "tests/toolkit/volumes/model.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const auto opened = tavrik::test::open_volume(argv[1], tavrik::volume::Mode::kOpen);
    if (!opened.volume) {
        std::fprintf(stderr, "%s: %s\n", argv[1], opened.reason.c_str());
        return 1;
    }
    tavrik::test::RandomChanges changes(tavrik::test::everything_in(*opened.volume),
                                        static_cast<unsigned>(std::atoi(argv[2])));
    while (true) {
        const auto outcome = changes.step(opened.volume.get());
        if (outcome.error != outcome.expected) return 1;
        if (::write(STDOUT_FILENO, ".", 1) != 1) return 1;
    }
}
