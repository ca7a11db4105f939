#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"
#include "tests/support/balance.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/streams.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <random>

namespace tavrik::test {
namespace {

// What the system does with a call: its error, or 0 and how many bytes it takes.
struct Answer {
    int error = 0;
    std::size_t bytes = SIZE_MAX;
};
std::function<Answer(std::size_t bytes)> on_read;
std::function<Answer(std::size_t bytes)> on_write;

template <class Call>
ssize_t answered(const std::function<Answer(std::size_t)>& by, std::size_t bytes, Call call) {
    const Answer answer = by ? by(bytes) : Answer{};
    if (answer.error == 0) return call(std::min(bytes, answer.bytes));
    errno = answer.error;
    return -1;
}

template <class F>
F system_call(const char* name) {
    return reinterpret_cast<F>(::dlsym(RTLD_NEXT, name));
}

}  // namespace
}  // namespace tavrik::test

// These stand before the system's own.
extern "C" ssize_t pread(int descriptor, void* bytes, size_t count, off_t position) {
    static const auto real = tavrik::test::system_call<decltype(&pread)>("pread");
    return tavrik::test::answered(tavrik::test::on_read, count,
                                  [&](std::size_t most) { return real(descriptor, bytes, most, position); });
}

extern "C" ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t position) {
    static const auto real = tavrik::test::system_call<decltype(&pwrite)>("pwrite");
    return tavrik::test::answered(tavrik::test::on_write, count,
                                  [&](std::size_t most) { return real(descriptor, bytes, most, position); });
}

namespace tavrik::test {
namespace {

class StreamFaults : public testing::Test {
protected:
    ~StreamFaults() override {
        on_read = nullptr;
        on_write = nullptr;
        core::take_unread_stream_failures();
    }

    Ref<FolderItem> item() const { return static_ref<FolderItem>(core::make_folder_item(folder_.file("map"))); }
    std::string in_file() const { return bytes_of(folder_.file("map")); }
    std::size_t up_to(std::size_t most) { return static_cast<std::size_t>(random_() % (most + 1)); }

    Balance balance_;
    TemporaryFolder folder_;
    std::mt19937_64 random_{11};
};

TEST_F(StreamFaults, Calls_that_are_cut_short_or_interrupted_are_taken_up_again) {
    const auto answer = [this](std::size_t bytes) {
        if (up_to(3) == 0) return Answer{.error = EINTR};
        return Answer{.bytes = 1 + up_to(bytes)};
    };
    on_read = answer;
    on_write = answer;
    std::string model(100'000, '.');
    folder_.new_file("map", model);
    Ref<BinaryStream> stream = item()->OpenAsBinaryFile(true);
    for (int round = 0; round < 20'000; ++round) {
        const std::size_t position = up_to(model.size() - 1);
        const std::size_t count = 1 + up_to(up_to(20) == 0 ? 90'000 : 20);
        stream->set_Position(position);
        if (round % 2 == 0) {
            ASSERT_EQ(stream->Read(static_cast<std::int32_t>(count), nullptr), model.substr(position, count));
            continue;
        }
        const std::string bytes(std::min(count, model.size() - position), static_cast<char>('a' + round % 26));
        stream->Write(String(bytes));
        model.replace(position, bytes.size(), bytes);
    }
    stream = nullptr;
    EXPECT_EQ(in_file(), model);
}

// Wherever the disk fails: either everything is in the file or the code is told, and a byte is old or new.
TEST_F(StreamFaults, Nothing_that_was_written_is_lost_without_being_told) {
    const std::string old(200'000, '.');
    for (const int error : {ENOSPC, EIO, EFBIG, EDQUOT}) {
        for (int round = 0; round < 20; ++round) {
            folder_.new_file("map", old);
            std::size_t room = up_to(250'000);
            on_write = [&](std::size_t bytes) {
                if (room == 0) return Answer{.error = error};
                const std::size_t taken = std::min(bytes, room);
                room -= taken;
                return Answer{.bytes = taken};
            };
            std::string model = old;
            std::size_t told_at = 0;
            {
                const Ref<BinaryStream> stream = item()->OpenAsBinaryFile(true);
                for (int i = 0; i < 40 && told_at == 0; ++i) {
                    const std::size_t position = up_to(old.size());
                    const std::string bytes(1 + up_to(up_to(5) == 0 ? 100'000 : 3000), 'n');
                    stream->set_Position(position);
                    stream->Write(String(bytes));
                    model.resize(std::max(model.size(), position + bytes.size()), '.');
                    model.replace(position, bytes.size(), bytes);
                    if (up_to(3) == 0) stream->Flush();
                    told_at = static_cast<std::size_t>(stream->LastErrorCode());
                }
            }
            on_write = nullptr;
            const bool told = told_at != 0 || !core::take_unread_stream_failures().empty();
            const std::string bytes = in_file();
            if (!told) {
                ASSERT_EQ(bytes, model);
            } else if (told_at != 0) {
                ASSERT_EQ(told_at,
                          static_cast<std::size_t>(error == EIO ? StreamError::kWriteFailed : StreamError::kNoRoom));
            }
            ASSERT_GE(bytes.size(), old.size());
            for (std::size_t at = 0; at < bytes.size(); ++at) {
                const bool is_old = at < old.size() ? bytes[at] == '.' : bytes[at] == '\0';
                ASSERT_TRUE(is_old || (bytes[at] == 'n' && model[at] == 'n')) << "at " << at;
            }
        }
    }
}

TEST_F(StreamFaults, A_failed_read_is_no_end) {
    folder_.new_file("map", std::string(50'000, 'x'));
    const Ref<BinaryStream> stream = item()->OpenAsBinaryFile(false);
    const Ref<TextInputStream> text = item()->OpenAsTextFile();
    int calls = 0;
    on_read = [&](std::size_t) { return ++calls % 2 == 0 ? Answer{.error = EIO} : Answer{.bytes = 10}; };
    EXPECT_EQ(stream->Read(100, nullptr), std::string(10, 'x'));
    EXPECT_EQ(stream->LastErrorCode(), static_cast<std::int32_t>(StreamError::kReadFailed));
    EXPECT_EQ(stream->Position(), 10U);
    EXPECT_EQ(text->ReadLine(nullptr), std::string(10, 'x'));
    EXPECT_EQ(text->LastErrorCode(), static_cast<std::int32_t>(StreamError::kReadFailed));
}

TEST_F(StreamFaults, A_device_without_room_is_told_of) {
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    if (full < 0) GTEST_SKIP() << "there is no such device";
    const Ref<BinaryStream> stream = make<BinaryStream>();
    stream->Constructor(full, kHandleOfDescriptor);
    stream->WriteInt32(4);
    EXPECT_EQ(stream->LastErrorCode(), 0);
    stream->Flush();
    EXPECT_EQ(stream->LastErrorCode(), static_cast<std::int32_t>(StreamError::kNoRoom));
}

}  // namespace
}  // namespace tavrik::test
