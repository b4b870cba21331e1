// The command slots as the screens call them: from QML, with JavaScript
// numbers and booleans, overloads picked by argument count.
#include "LinkTestSupport.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

using namespace LinkTest;

class TstLinkQml : public QObject
{
    Q_OBJECT
private slots:
    void calledFromQml_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QList<QByteArray>>("expected");
        QTest::newRow("selector overload without argument") << "proc.connectGetInputCurrentFormat()"
            << QList<QByteArray>{"<T0000f1ba000000ab>", "<T0000f1ba010000ac>", "<T0000f1ba020000ad>", "<T0000f1ba030000ae>"};
        QTest::newRow("stream on air without isSend")
            << "proc.connectStreamOnAir(1, 'rtmp://h/a')"
            << QList<QByteArray>{QByteArray("<T0000f0b4000e00b2>") + QByteArray::fromHex("0122") + "rtmp://h/a" + QByteArray::fromHex("2298")};
        QTest::newRow("stream on air, isSend false") << "proc.connectStreamOnAir(1, 'rtmp://h/a', false)" << QList<QByteArray>{};
        QTest::newRow("sender slot") << "proc.sendBluetoothConnect_New(false)" << QList<QByteArray>{"<T0000c500b600007b>"};
        QTest::newRow("NDI connection block") << "proc.connectSNDIConnection(1, 64, '192.168.1.20', '255.255.255.0')"
            << QList<QByteArray>{QByteArray("<T0000f0b8030b00b6>") + QByteArray::fromHex("0140c0a80114ffffff00bb")};
    }
    void calledFromQml()
    {
        QFETCH(QString, expression);
        QFETCH(QList<QByteArray>, expected);
        LinkFixture fx;
        QQmlEngine engine;
        engine.rootContext()->setContextProperty(QStringLiteral("proc"), fx.proc.get());
        QQmlExpression expr(engine.rootContext(), nullptr, expression);
        const QVariant result = expr.evaluate();
        QVERIFY2(!expr.hasError(), qPrintable(expr.error().toString()));
        if (!expression.contains(QLatin1String("sendBluetooth")))
            QCOMPARE(result.toBool(), true);
        for (const QByteArray &want : expected)
            QCOMPARE(fx.nextCommand().toHex(), want.toHex());
        QVERIFY(fx.drainCommands(expected.isEmpty() ? 250 : 60).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstLinkQml)
#include "tst_linkqml.moc"
