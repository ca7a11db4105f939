#include "toolkit/fronts/qt/shortcut.h"

#include "toolkit/fronts/qt/text.h"

#include <QtGlobal>

#include <array>
#include <optional>

namespace tavrik::front::qt {
namespace {

struct ModifierName {
    QLatin1String name;
    Qt::KeyboardModifier modifier;
};

// On macOS Qt calls the Command key Control, and the Control key Meta.
#ifdef Q_OS_MACOS
constexpr Qt::KeyboardModifier kControl = Qt::MetaModifier;
#else
constexpr Qt::KeyboardModifier kControl = Qt::ControlModifier;
#endif

constexpr std::array kModifierNames{
    ModifierName{QLatin1String("Cmd"), Qt::ControlModifier},
    ModifierName{QLatin1String("Command"), Qt::ControlModifier},
    ModifierName{QLatin1String("Ctrl"), kControl},
    ModifierName{QLatin1String("Control"), kControl},
    ModifierName{QLatin1String("Option"), Qt::AltModifier},
    ModifierName{QLatin1String("Alt"), Qt::AltModifier},
    ModifierName{QLatin1String("Shift"), Qt::ShiftModifier},
};

std::optional<Qt::KeyboardModifier> to_modifier(const QString& name) {
    for (const ModifierName& known : kModifierNames) {
        if (name.compare(known.name, Qt::CaseInsensitive) == 0) return known.modifier;
    }
    return std::nullopt;
}

Qt::Key to_key(const QString& name) {
    const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].keyboardModifiers() != Qt::NoModifier) return Qt::Key_unknown;
    return sequence[0].key();
}

}  // namespace

QKeySequence to_shortcut(std::string_view text) {
    QString rest = to_qt(text).remove(u' ');
    Qt::KeyboardModifiers modifiers;
    // The last character is a key even where it is a "+".
    for (qsizetype plus = rest.indexOf(u'+'); plus > 0 && plus + 1 < rest.size(); plus = rest.indexOf(u'+')) {
        const auto modifier = to_modifier(rest.left(plus));
        if (!modifier) return {};
        modifiers |= *modifier;
        rest.remove(0, plus + 1);
    }

    const bool bare = modifiers == Qt::KeyboardModifiers() && rest.size() == 1;
    if (bare && rest.front().isLetterOrNumber()) modifiers = Qt::ControlModifier;

    const Qt::Key key = to_key(rest);
    if (key == Qt::Key_unknown || key == Qt::Key(0)) return {};
    return QKeyCombination(modifiers, key);
}

}  // namespace tavrik::front::qt
