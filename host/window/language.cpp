#include "window/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

static void initCatalogues() // outside: the macro does not work in a namespace
{
    Q_INIT_RESOURCE(translations);
}

namespace {

constexpr struct {
    LanguageChoice choice;
    const char* code;
    const char* name;
} kLanguages[] = {
    {LanguageChoice::English, "en", "English"},
    {LanguageChoice::German, "de", "Deutsch"},
    {LanguageChoice::French, "fr", "Fran\u00e7ais"},
    {LanguageChoice::Spanish, "es", "Espa\u00f1ol"},
    {LanguageChoice::Chinese, "zh_CN", "\u7b80\u4f53\u4e2d\u6587"},
};

LanguageChoice ofDesktop()
{
    for (const QString& wanted : QLocale::system().uiLanguages()) {
        const QLocale locale(wanted);
        const auto isSpoken = [&locale](const char* code) {
            const QLocale spoken{QString::fromLatin1(code)};
            return spoken.language() == locale.language() && spoken.script() == locale.script();
        };
        for (const auto& row : kLanguages)
            if (isSpoken(row.code))
                return row.choice;
    }
    return LanguageChoice::English;
}

// The desk, its views, and what Qt says itself, which its own package carries.
std::vector<std::pair<QString, QString>> cataloguesOf(const QString& code)
{
    const QString ours = QStringLiteral(":/translations");
    return {
        {QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)},
        {QStringLiteral("devview_") + code, ours},
        {QStringLiteral("upsdesk_") + code, ours}};
}

} // namespace

QString language::codeOf(LanguageChoice choice)
{
    const LanguageChoice spoken = choice == LanguageChoice::System ? ofDesktop() : choice;
    for (const auto& row : kLanguages)
        if (row.choice == spoken)
            return QString::fromLatin1(row.code);
    return QStringLiteral("en");
}

LanguageChoice language::choiceOf(const QString& code)
{
    for (const auto& row : kLanguages)
        if (code == QLatin1String(row.code))
            return row.choice;
    return LanguageChoice::System;
}

const char* language::nameOf(LanguageChoice choice)
{
    for (const auto& row : kLanguages)
        if (row.choice == choice)
            return row.name;
    return nullptr;
}

void language::apply(LanguageChoice choice)
{
    initCatalogues();
    static std::vector<std::unique_ptr<QTranslator>> spoken;
    spoken.clear(); // a translator that ends takes itself out
    const QString code = codeOf(choice);
    if (code == QLatin1String("en"))
        return;
    for (const auto& [file, folder] : cataloguesOf(code)) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(file, folder) && QCoreApplication::installTranslator(translator.get()))
            spoken.push_back(std::move(translator));
    }
}
