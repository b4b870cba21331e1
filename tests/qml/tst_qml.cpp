// Runs the QML view tests (tst_*.qml in this folder) against the compiled-in
// documents, with the native QML types and the process-wide translator the
// application has, so a test can switch the language live.
#include "Startup.h"
#include "Translations.h"

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

class Setup : public QObject
{
    Q_OBJECT
public slots:
    void applicationAvailable() { Startup::registerQmlTypes(); }
    void qmlEngineAvailable(QQmlEngine *engine) { engine->rootContext()->setContextProperty(QStringLiteral("testSetup"), this); }
    // Back to the source texts, which the other test files compare with.
    void dropTranslation() { QCoreApplication::removeTranslator(&Translations::translator()); }
};

QUICK_TEST_MAIN_WITH_SETUP(qml, Setup)
#include "tst_qml.moc"
