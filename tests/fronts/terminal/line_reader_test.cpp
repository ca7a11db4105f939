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

TEST(LineReader, A_line_may_come_in_pieces_of_any_length) {
    Pipe pipe;
    LineReader reader(pipe.read_end());
    const std::string piece(4000, 'x');
    for (int count = 0; count < 50; ++count) {
        pipe.write(piece);
        reader.fill();
        EXPECT_FALSE(reader.ready());
        EXPECT_EQ(reader.next(), std::nullopt);
    }
    pipe.write("\n");
    reader.fill();
    ASSERT_TRUE(reader.ready());
    EXPECT_EQ(reader.next()->size(), 50 * piece.size());
}

TEST(LineReader, A_line_that_never_ends_takes_no_more_memory_than_the_longest_line) {
    Pipe pipe;
    LineReader reader(pipe.read_end());
    const std::string piece(4096, 'x');
    for (std::size_t sent = 0; sent < 2 * LineReader::kLongestLine; sent += piece.size()) {
        pipe.write(piece);
        reader.fill();
    }
    pipe.write("\nnext\n");
    reader.fill();
    EXPECT_EQ(reader.next()->size(), LineReader::kLongestLine);
    EXPECT_EQ(reader.next(), "next");
}

TEST(LineReader, A_closed_reader_drops_what_was_not_taken) {
    Pipe pipe;
    pipe.write("one\ntwo\n");
    LineReader reader(pipe.read_end());
    reader.fill();
    reader.close();
    EXPECT_EQ(reader.next(), std::nullopt);
    EXPECT_TRUE(reader.ended());
}

TEST(LineReader, A_descriptor_that_cannot_be_read_is_at_its_end) {
    LineReader reader(-1);
    reader.fill();
    EXPECT_TRUE(reader.ended());
}

}  // namespace
}  // namespace tavrik::front::terminal
