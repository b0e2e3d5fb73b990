// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/CellTable.h>

using namespace Qt::StringLiterals;

namespace {

QString quoted(QString cell)
{
    const bool needsQuotes =
        cell.contains(u'\t') || cell.contains(u'\n') || cell.contains(u'\r') || cell.startsWith(u'"');
    return needsQuotes ? u'"' + cell.replace(u'"', u"\"\""_s) + u'"' : cell;
}

/// The cell that begins at \a place, which is left behind it. A quotation mark in its midst is only that.
QString cellAt(const QString &text, qsizetype &place)
{
    QString cell;
    bool isQuoted = place < text.size() && text.at(place) == u'"';
    for (place += isQuoted ? 1 : 0; place < text.size(); ++place) {
        const QChar character = text.at(place);
        if (!isQuoted && (character == u'\t' || character == u'\n'))
            break;
        if (!isQuoted || character != u'"')
            cell += character;
        else if (text.mid(place + 1, 1) == u"\"")
            cell += text.at(++place);
        else
            isQuoted = false;
    }
    return cell;
}

} // namespace

QString CellTable::text(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(quoted(cell));
        text += cells.join(u'\t') + u'\n';
    }
    return rows.size() == 1 && rows.first().size() == 1 ? rows.first().first() : text;
}

QList<QStringList> CellTable::rows(const QString &text)
{
    const QString unix = QString(text).replace(u"\r\n"_s, u"\n"_s);
    QList<QStringList> rows;
    for (qsizetype place = 0; place < unix.size(); ++place) {
        QStringList row{cellAt(unix, place)};
        while (place < unix.size() && unix.at(place) == u'\t')
            row.append(cellAt(unix, ++place));
        rows.append(row);
    }
    return rows;
}
