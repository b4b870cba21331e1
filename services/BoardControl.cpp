#include "BoardControl.h"

#include <QStringList>

#include <algorithm>
#include <cstdint>

namespace BoardControl {

int fanDuty(int ratePercent)
{
    // Unsigned multiply: the same wrap as the board's int arithmetic, without undefined behaviour.
    const auto product = static_cast<std::int32_t>(static_cast<std::uint32_t>(ratePercent) * std::uint32_t(kFanFullDuty));
    return product / 100;
}

int daysInMonth(int month, int year)
{
    if (month > 12 || month < 1)
        month = 1;
    if ((0x15AA >> month) & 1)
        return 31;
    if (month == 2)
        return year % 4 == 0 ? 29 : 28;
    return 30;
}

ClockTexts timeZoneStep(const QDateTime &now, int h, int m)
{
    int year = now.date().year();
    int month = now.date().month();
    int day = now.date().day();
    int hour = now.time().hour();
    int minute = now.time().minute();
    const int second = now.time().second();

    minute += m;
    if (minute < 0) {
        minute += 60;
        hour -= 1;
    } else if (minute >= 60) {
        minute -= 60;
        hour += 1;
    }
    hour += h;
    if (hour < 0) {
        hour += 12;
        day -= 1;
    } else if (hour >= 24) {
        hour -= 24;
        day += 1;
    }
    if (day >= 1 && day > daysInMonth(month, year)) {
        day = 1;
        month += 1;
    }
    if (day < 1) {
        if (month < 2) {
            month = 12;
            day = 31;
            year -= 1;
        } else {
            month -= 1;
            day = daysInMonth(month, year);
        }
    }
    if (month > 12) {
        year += 1;
        day = 12;
    }
    return setDateTexts(year, month, day, hour, minute, second);
}

ClockTexts setDateTexts(int year, int month, int days, int hours, int minutes, int seconds)
{
    ClockTexts texts;
    texts.date = QStringLiteral("%1/%2/%3").arg(month).arg(days).arg(year);
    texts.time = QStringLiteral("%1:%2:%3").arg(hours).arg(minutes).arg(seconds);
    texts.hour = hours;
    return texts;
}

std::optional<int> maxTemperature(const QByteArray &catOutput)
{
    const QStringList parts = QString::fromLatin1(catOutput).split(QLatin1Char('\n'), Qt::KeepEmptyParts);
    if (parts.size() < 2)
        return std::nullopt;
    return std::max(parts.at(0).toInt(), parts.at(1).toInt()) / 1000;
}

int bridgeStatus(const QByteArray &upgrade, const QByteArray &update)
{
    if (upgrade == "1\n" && update == "1\n")
        return 1;
    if (upgrade == "2\n" || update == "2\n")
        return 2;
    return 0;
}

QByteArray untilNul(const QByteArray &bytes)
{
    const int nul = bytes.indexOf('\0');
    return nul < 0 ? bytes : bytes.left(nul);
}

bool pingAnswered(const QByteArray &pingOutput)
{
    return pingOutput.contains("TTL") || pingOutput.contains("ttl");
}

} // namespace BoardControl
