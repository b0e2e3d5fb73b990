// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// A table's texts by their keys; none where it holds anything but one text for each key.
QMap<QString, QString> readTable(const QString &path)
{
    QFile file(path);
    QMap<QString, QString> texts;
    qsizetype messages = 0, sources = 0;
    if (!file.open(QFile::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        messages += xml.name() == u"message";
        sources += xml.name() == u"source";
        if (xml.name() == u"source")
            key = xml.readElementText();
        else if (xml.name() == u"translation")
            texts.insert(key, xml.readElementText());
    }
    if (xml.hasError() || messages != sources || texts.size() != messages)
        return {};
    return texts;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%(\\d|l?[ud]|@)"_s);
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

/// Every text that the library's sources look up, as far as they name it.
QSet<QString> keysInSources()
{
    static const QRegularExpression lookUp(
        u"(?:localizedString(?:ForKey)?|localized|wildcard)\\(u\"((?:[^\"\\\\]|\\\\.)+)\""_s);
    QSet<QString> keys;
    QDirIterator sources(QStringLiteral(ZEV_SOURCE_DIR "/ZEVGlobalUtils"), {u"*.cpp"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        if (!file.open(QFile::ReadOnly))
            continue;
        for (auto match = lookUp.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
            keys.insert(match.next().captured(1));
    }
    return keys;
}

} // namespace

class tst_Translations : public QObject {
    Q_OBJECT

private:
    QDir m_tables{QStringLiteral(ZEV_SOURCE_DIR "/ZEVGlobalUtils/Resources/translations")};
    QMap<QString, QString> m_english = readTable(m_tables.filePath(u"ZEVGlobalUtils_en.ts"_s));

private Q_SLOTS:
    void theEnglishTableHasEveryTextOfTheSources()
    {
        for (auto text = m_english.cbegin(); text != m_english.cend(); ++text)
            QVERIFY2(text.value() == text.key() || text.key().startsWith(u'-'), qPrintable(text.key()));
        const QSet<QString> keys = keysInSources();
        QVERIFY(keys.size() > 15);
        for (const QString &key : keys)
            QVERIFY2(m_english.contains(key), qPrintable(key));
    }

    void everyLanguageIsComplete()
    {
        const QStringList files = m_tables.entryList({u"*.ts"_s});
        QVERIFY(files.size() >= 5);
        QVERIFY(m_english.size() > 100);
        for (const QString &file : files) {
            const QMap<QString, QString> texts = readTable(m_tables.filePath(file));
            QCOMPARE(texts.keys(), m_english.keys());
            for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
                QVERIFY2(!text.value().isEmpty(), qPrintable(file + u": "_s + text.key()));
                QCOMPARE(placeholders(text.value()), placeholders(text.key()));
            }
        }
    }

    /// The table is chosen once a process, so every language gets one of its own.
    void theUsersLanguageIsSpoken()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"de_AT.UTF-8"_s, u"Ziffern"_s}, {u"fr_CA.UTF-8"_s, u"Chiffres"_s},
            {u"en_GB.UTF-8"_s, u"Digits"_s},  {u"C"_s, u"Digits"_s},
            {u"es_MX.UTF-8"_s, u"Dígitos"_s}, {u"ja_JP.UTF-8"_s, u"数字"_s},
            {u"fi_FI.UTF-8"_s, u"Digits"_s}, // it has no table
        };
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"LANGUAGE"_s);
        environment.insert(u"ZEV_SAY"_s, u"Digits"_s);
        for (const auto &[language, digits] : rows) {
            environment.insert(u"LC_ALL"_s, language);
            QProcess process;
            process.setProcessEnvironment(environment);
            process.start(QCoreApplication::applicationFilePath());
            QVERIFY(process.waitForFinished());
            COMPARE_ROW(language, QString::fromUtf8(process.readAllStandardOutput()), digits);
        }
    }

    void aMissingKeyComesBackUnchanged()
    {
        const QString key = u"No such text… \U0001F3B5 %1"_s;
        QCOMPARE(ZEVGlobalHelper::localizedStringForKey(key), key);
        QCOMPARE(ZEVGlobalHelper::localizedStringForKey(u""), QString());
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (const QString key = qEnvironmentVariable("ZEV_SAY"); !key.isEmpty()) {
        std::fputs(qPrintable(ZEVGlobalHelper::localizedStringForKey(key)), stdout);
        return 0;
    }
    tst_Translations test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_Translations.moc"
