// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString Root = QStringLiteral(ZEV_SOURCE_DIR);
const QString Tables = Root + u"/examples/tageditor/translations/tageditor_%1.ts"_s;

struct Message {
    QString source;
    bool isFinished = true;
    QStringList forms; ///< one, or as many as the language has for counted things
};

QList<Message> readTable(const QString &path)
{
    QFile file(path);
    QList<Message> messages;
    if (!file.open(QFile::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    bool isCounted = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            messages.append(Message());
            isCounted = xml.attributes().value(u"numerus"_s) == u"yes";
        } else if (xml.name() == u"source") {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            messages.last().isFinished = !xml.attributes().hasAttribute(u"type"_s);
            if (!isCounted)
                messages.last().forms.append(xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            messages.last().forms.append(xml.readElementText());
        }
    }
    return messages;
}

/// The places of values, and whether there is a mnemonic.
QStringList marks(const QString &text)
{
    static const QRegularExpression mark(u"%L?[\\dn]|&(?=\\S)"_s);
    QStringList found;
    for (auto match = mark.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

bool isTranslated(const Message &message)
{
    const auto fits = [&](const QString &form) {
        return !form.isEmpty() && marks(form) == marks(message.source);
    };
    return message.isFinished && !message.forms.isEmpty() && std::ranges::all_of(message.forms, fits);
}

QStringList sources(const QList<Message> &messages)
{
    QStringList sources;
    for (const Message &message : messages)
        sources.append(message.source);
    return sources;
}

} // namespace

/// The tables of the tag editor against what its sources say today.
class tst_TagEditorTexts : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QByteArray m_warnings;

    /// A copy of the table, brought up to date with the sources.
    QList<Message> updatedTable(const QString &language)
    {
        const QString table = m_folder.filePath(language + u".ts"_s);
        QFile::copy(Tables.arg(language), table);
        QStringList arguments{u"-no-obsolete"_s, u"-locations"_s,         u"none"_s, u"-I"_s,
                              u"examples"_s,     u"examples/tageditor"_s, u"-ts"_s,  table};
        if (language == u"en")
            arguments.prepend(u"-pluralonly"_s);
        QProcess lupdate;
        lupdate.setWorkingDirectory(Root);
        lupdate.start(QStringLiteral(ZEV_LUPDATE), arguments);
        if (!lupdate.waitForFinished() || lupdate.exitCode() != 0)
            return {};
        m_warnings += lupdate.readAllStandardError();
        return readTable(table);
    }

private Q_SLOTS:
    void aFaultIsSeen()
    {
        const std::tuple<Message, bool> rows[] = {
            {{u"&Save %1"_s, true, {u"%1 &speichern"_s}}, true},
            {{u"&Save %1"_s, false, {u"%1 &speichern"_s}}, false},
            {{u"&Save"_s, true, {QString()}}, false},
            {{u"&Save"_s, true, {u"Speichern"_s}}, false},
            {{u"%L1 of %Ln"_s, true, {u"%L1 von %Ln"_s, u"%L1 von %L2"_s}}, false},
        };
        for (const auto &[message, isGood] : rows)
            COMPARE_ROW(message.source + message.forms.join(u'|'), isTranslated(message), isGood);
    }

    void everyTextIsTranslated()
    {
        for (const QString &language : {u"de"_s, u"es"_s, u"fr"_s, u"ja"_s, u"en"_s}) {
            const QList<Message> messages = updatedTable(language);
            QVERIFY(messages.size() > 10);
            for (const Message &message : messages)
                QVERIFY2(isTranslated(message), qPrintable(language + u": "_s + message.source));
            COMPARE_ROW(language, sources(readTable(Tables.arg(language))),
                        sources(messages)); // none is stale
        }
        QCOMPARE(m_warnings, QByteArray()); // of texts without a class, which would be looked up elsewhere
    }

    /// A text that comes in a variable is in no table.
    void everyTextIsALiteral()
    {
        static const QRegularExpression variable(
            u"(?<![\\w.])tr\\(\\s*[^\"\\s]|Application::translate\\(\\s*(?!\"\\w+\",\\s*\")"_s);
        QDirIterator files(Root + u"/examples/tageditor"_s, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        QVERIFY(files.hasNext());
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QFile::ReadOnly));
            const QString found = variable.match(QString::fromUtf8(file.readAll())).captured();
            COMPARE_ROW(file.fileName(), found, QString());
        }
    }
};

QTEST_GUILESS_MAIN(tst_TagEditorTexts)
#include "tst_TagEditorTexts.moc"
