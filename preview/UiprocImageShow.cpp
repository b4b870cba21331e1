#include "UiprocImageShow.h"

UiprocImageProvider::UiprocImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage UiprocImageProvider::requestImage(const QString &, QSize *, const QSize &) { return {}; }
QPixmap UiprocImageProvider::requestPixmap(const QString &, QSize *, const QSize &) { return {}; }

UiprocImageShow::UiprocImageShow(QObject *parent)
    : QObject(parent)
    , m_provider(new UiprocImageProvider)
{
}

void UiprocImageShow::setMainImage(QImage, int, int) {}
void UiprocImageShow::setCore() {}
