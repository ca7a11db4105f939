#include "toolkit/fronts/qt/text.h"

#include <QTextDocument>

namespace tavrik::front::qt {

QString to_qt(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

std::string from_qt(const QString& text) { return text.toStdString(); }

QString without_mnemonic(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) ++i;
        plain += text[i];
    }
    return plain;
}

QString as_plain_tool_tip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

}  // namespace tavrik::front::qt
