// Start-up of the front end: core pinning, QML types, language, engine,
// preview provider, main document, event loop.
#include "LogCategories.h"
#include "Startup.h"
#include "Translations.h"
#include "UiprocImageShow.h"

#include <QApplication>
#include <QDebug>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QTranslator>

int main(int argc, char *argv[])
{
    Startup::markProcessStart();
    Startup::pinCurrentThread(2);
    Startup::selectVirtualKeyboard();
    Startup::selectFontConfiguration();
    QApplication app(argc, argv);
    Startup::warmFontDatabase();

    Startup::registerQmlTypes();

    Translations::loadStartupLanguage(QLocale::system().name());
    app.installTranslator(&Translations::translator());

    QQmlApplicationEngine engine;

    auto *codeImage = new UiprocImageShow; // lives as long as the process
    engine.rootContext()->setContextProperty(QStringLiteral("CodeImage"), codeImage);
    engine.addImageProvider(QStringLiteral("MyMainCodeImg"), codeImage->provider());
    codeImage->setScreenCount(QGuiApplication::screens().size());

    engine.rootContext()->setContextProperty(QStringLiteral("isWatchStart"),
                                             Startup::isWatchStart(app.arguments()));
    engine.rootContext()->setContextProperty(QStringLiteral("csStartPage"), Startup::startPage());
    engine.rootContext()->setContextProperty(QStringLiteral("csAbout"), Startup::aboutInfo());

    QQmlComponent component(&engine, Startup::mainDocument());
    QObject *root = component.create();
    qDebug() << "---errors = " << component.errors();
    Startup::scheduleDevelopmentHooks(root);

    return app.exec();
}
