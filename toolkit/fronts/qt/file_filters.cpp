#include "toolkit/fronts/qt/file_filters.h"

#include "toolkit/fronts/qt/text.h"

namespace tavrik::front::qt {
namespace {

// "*.[mM][aA][pP]": not every platform's own dialog takes upper and lower case as the same.
QString to_pattern(const QString& extension) {
    QString pattern = QStringLiteral("*.");
    for (const QChar letter : extension) {
        const QChar lower = letter.toLower();
        const QChar upper = letter.toUpper();
        if (lower == upper) {
            pattern += letter;
        } else {
            pattern += u'[';
            pattern += lower;
            pattern += upper;
            pattern += u']';
        }
    }
    return pattern;
}

QString to_name_filter(const FileFilter& filter) {
    QStringList patterns;
    for (const std::string& extension : filter.extensions) patterns << to_pattern(to_qt(extension));
    if (patterns.isEmpty()) patterns << QStringLiteral("*");
    return to_qt(filter.label) + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

}  // namespace

QStringList to_name_filters(std::span<const FileFilter> filters) {
    QStringList name_filters;
    for (const FileFilter& filter : filters) name_filters << to_name_filter(filter);
    return name_filters << QStringLiteral("All files (*)");
}

}  // namespace tavrik::front::qt
