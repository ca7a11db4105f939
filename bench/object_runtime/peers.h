#pragma once

#include <QObject>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// The same objects, written on the standard library and on Qt. What they do is as far out of the compiler's sight as
// it is with classes of the class layer.
namespace tavrik::bench {

class PlainCounter {
public:
    virtual ~PlainCounter() = default;
    virtual std::int32_t advance(std::int32_t by) = 0;
};

std::unique_ptr<PlainCounter> make_plain_counter();

class PlainNote {
public:
    virtual ~PlainNote() = default;
    virtual QString text() const = 0;
    virtual void set_text(const QString& text) = 0;
    virtual std::size_t length_of(const std::string& text) const = 0;
    virtual qsizetype length_of(const QString& text) const = 0;
};

std::unique_ptr<PlainNote> make_plain_note();

class QtCounter : public QObject {
    Q_OBJECT

public:
    void announce(int count);

Q_SIGNALS:
    void announced(int count);
};

class QtListener : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void take_announced(int count);

private:
    int count_ = 0;
};

}  // namespace tavrik::bench
