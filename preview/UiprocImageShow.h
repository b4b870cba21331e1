#pragma once
// Holds the latest preview frame (in its image provider) and tells the screens a new one is there.
#include <QImage>
#include <QObject>
#include <QQuickImageProvider>

class UiprocImageProvider : public QQuickImageProvider
{
public:
    UiprocImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;
};

class UiprocImageShow : public QObject
{
    Q_OBJECT
public:
    explicit UiprocImageShow(QObject *parent = nullptr);
    UiprocImageProvider *provider() const { return m_provider; }
    void setScreenCount(int count) { m_screenCount = count; }
    int screenCount() const { return m_screenCount; }

signals:
    void callRefreshMainImg();

public slots:
    void setMainImage(QImage image, int width, int height);
    void setCore();

private:
    UiprocImageProvider *m_provider = nullptr;
    int m_screenCount = 0;
};
