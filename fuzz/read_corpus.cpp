#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Reads each file named in the arguments once, as a fuzzer does that is given files.
int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "%s can't be read\n", argv[i]);
            return 1;
        }
        std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        bytes.shrink_to_fit();  // so that a sanitizer sees a read behind the end
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return 0;
}
