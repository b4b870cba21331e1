#pragma once
#include <QObject>
#include <QString>

// Carries debug text from the native side to the screens.
class UiprocPublic : public QObject
{
    Q_OBJECT
public:
    explicit UiprocPublic(QObject *parent = nullptr);
    ~UiprocPublic() override;

    // Emits sendDebugToQml on the last UiprocPublic constructed (if any).
    static void sendDebug(const QString &debugStr);

signals:
    void sendDebugToQml(QString debugStr);
};
