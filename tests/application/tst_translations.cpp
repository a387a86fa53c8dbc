#include "application/languages.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

struct Message
{
    QString context;
    QString source;
    /// More than one for a text with a number in it.
    QStringList translations;
    bool isUnfinished = false;
};

QList<Message> messagesIn(QXmlStreamReader &xml)
{
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "source"_L1) {
            messages.append({context, xml.readElementText(), {}});
        } else if (xml.name() == "translation"_L1 && !messages.isEmpty()) {
            Message &message = messages.last();
            message.isUnfinished = xml.attributes().hasAttribute("type"_L1);
            QString text;
            while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
                if (xml.isStartElement())
                    message.translations.append(xml.readElementText());
                else
                    text += xml.text();
            }
            if (message.translations.isEmpty())
                message.translations.append(text);
        }
    }
    return messages;
}

/// What a program, not a person, reads in a text: places for values, and the patterns of files.
QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression expression(uR"(%L?\d+|%n|\([^()]*\*[^()]*\))"_s);
    QSet<QString> found;
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        found.insert(match.captured());
    return found;
}

qsizetype mnemonics(QString text)
{
    static const QRegularExpression expression(uR"(&\S)"_s);
    return text.remove(u"&&"_s).count(expression);
}

/// Empty if the translation can stand for the source.
QString faultOf(const QString &source, const QString &translation, bool sharesPunctuation)
{
    if (translation.trimmed().isEmpty())
        return u"is empty"_s;
    if (placeholders(translation) != placeholders(source))
        return u"has other placeholders"_s;
    if (mnemonics(translation) > mnemonics(source))
        return u"has a mnemonic too many"_s;
    for (const QChar end : {u'…', u':'}) {
        if (sharesPunctuation && translation.endsWith(end) != source.endsWith(end))
            return u"ends differently"_s;
    }
    return {};
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageIsShippedWhole_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString &code : languageCodes()) {
            if (code != kSourceLanguage)
                QTest::newRow(qPrintable(code)) << code;
        }
    }

    void everyLanguageIsShippedWhole()
    {
        QFETCH(const QString, code);
        QTranslator catalogue;
        QVERIFY(catalogue.load("zelmoraatelier_"_L1 + code, u":/i18n"_s));
        QCOMPARE(catalogue.language(), code);

        QFile file(QStringLiteral(TRANSLATIONS) + "/zelmoraatelier_"_L1 + code + ".ts"_L1);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
        QXmlStreamReader xml(&file);
        const QList<Message> messages = messagesIn(xml);
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(!messages.isEmpty());

        const bool sharesPunctuation = code != "ja"_L1 && code != "zh_CN"_L1;
        QStringList faults;
        for (const Message &message : messages) {
            QStringList found;
            if (message.isUnfinished)
                found.append(u"is unfinished"_s);
            for (const QString &translation : message.translations)
                found.append(faultOf(message.source, translation, sharesPunctuation));
            found.removeAll(QString());
            if (!found.isEmpty())
                faults.append(u"%1: \"%2\" %3"_s.arg(message.context, message.source, found.first()));
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)

#include "tst_translations.moc"
