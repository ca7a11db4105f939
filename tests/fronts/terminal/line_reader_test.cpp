#include "toolkit/fronts/terminal/line_reader.h"

#include "tests/fronts/terminal/console.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

TEST(LineReader, Lines_are_cut_before_LF_and_keep_all_other_bytes) {
    Pipe pipe;
    pipe.write(std::string("a \r\n\n\0\xFF\nrest", 12));
    pipe.close_write_end();
    LineReader reader(pipe.read_end());
    std::vector<std::string> lines;
    while (!reader.ended()) {
        reader.fill();
        while (auto line = reader.next()) lines.push_back(*line);
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"a \r", "", std::string("\0\xFF", 2), "rest"}));
}

TEST(LineReader, A_line_comes_in_pieces_and_takes_no_more_memory_than_the_longest_line) {
    Pipe pipe;
    LineReader reader(pipe.read_end());
    const std::string piece(4096, 'x');
    for (const std::size_t length : {50 * piece.size(), 2 * LineReader::kLongestLine}) {
        for (std::size_t sent = 0; sent < length; sent += piece.size()) {
            pipe.write(piece);
            reader.fill();
            EXPECT_EQ(reader.next(), std::nullopt);
        }
        pipe.write("\n");
        reader.fill();
        EXPECT_EQ(reader.next().value_or("").size(), std::min(length, LineReader::kLongestLine));
    }
}

}  // namespace
}  // namespace tavrik::front::terminal
