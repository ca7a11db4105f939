#include "bench/object_runtime/peers.h"

namespace tavrik::bench {
namespace {

class PlainCounterImplementation final : public PlainCounter {
public:
    std::int32_t advance(std::int32_t by) override { return count_ += by; }

private:
    std::int32_t count_ = 0;
};

class PlainNoteImplementation final : public PlainNote {
public:
    QString text() const override { return text_; }
    void set_text(const QString& text) override { text_ = text; }
    std::size_t length_of(const std::string& text) const override { return text.size(); }
    qsizetype length_of(const QString& text) const override { return text.size(); }

private:
    QString text_;
};

}  // namespace

std::unique_ptr<PlainCounter> make_plain_counter() { return std::make_unique<PlainCounterImplementation>(); }
std::unique_ptr<PlainNote> make_plain_note() { return std::make_unique<PlainNoteImplementation>(); }

void QtCounter::announce(int count) { Q_EMIT announced(count); }
void QtListener::take_announced(int count) { count_ = count; }

}  // namespace tavrik::bench
