// SPDX-License-Identifier: MIT
#include "desk/documents/TableCopy.h"

#include <QStringList>

namespace {

QString csvField(QString text)
{
    const bool isNumber = text.size() > 1 && text.at(1).isDigit();
    if (!text.isEmpty() && QStringView(u"=+-@\t\r").contains(text.front()) && !isNumber)
        text.prepend(u'\'');
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString lineField(QString text)
{
    return text.replace(u'\t', u' ').replace(u'\n', u' ');
}

struct Copy {
    QString text;
    QString csv;
    QString html;

    void append(const QStringList &fields, const QString &tag)
    {
        QStringList lines;
        QStringList values;
        QString cells;
        for (const QString &field : fields) {
            lines.append(lineField(field));
            values.append(csvField(field));
            cells += u'<' + tag + u'>' + field.toHtmlEscaped() + QStringLiteral("</") + tag + u'>';
        }
        text += lines.join(u'\t') + u'\n';
        csv += values.join(u',') + QStringLiteral("\r\n");
        html += QStringLiteral("<tr>") + cells + QStringLiteral("</tr>\n");
    }
};

} // namespace

std::unique_ptr<QMimeData> copyOfRows(const QAbstractItemModel &model, const std::vector<int> &rows)
{
    Copy copy;
    QStringList fields;
    for (int column = 0; column < model.columnCount(); ++column)
        fields.append(model.headerData(column, Qt::Horizontal).toString());
    copy.append(fields, QStringLiteral("th"));
    for (const int row : rows) {
        fields.clear();
        for (int column = 0; column < model.columnCount(); ++column)
            fields.append(model.index(row, column).data().toString());
        copy.append(fields, QStringLiteral("td"));
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(copy.text);
    data->setData(QStringLiteral("text/csv"), copy.csv.toUtf8());
    data->setHtml(QStringLiteral("<table>\n") + copy.html + QStringLiteral("</table>\n"));
    return data;
}
