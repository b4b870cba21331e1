#pragma once
// The decisions behind the board-control slots of UiProc, free of shells
// and clocks so they can be checked on their own: the fan duty, the clock
// shift of a time-zone change, the temperature and bridge status readings,
// the ping answer.
#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

namespace BoardControl {

// Duty at 100 %: the fan's PWM period is 50000, and the duty stays just
// below it, so the fan never gets a full-on cycle.
constexpr int kFanFullDuty = 49990;

// ratePercent × 49990 / 100 as the board's 32-bit arithmetic does it
// (wrapping on overflow, truncated toward zero); 100 % gives 49990.
int fanDuty(int ratePercent);

// Days of a month: 31 for 1, 3, 5, 7, 8, 10, 12 and for anything above 12;
// February has 29 in years divisible by 4.
int daysInMonth(int month, int year);

struct ClockTexts
{
    QString date; // "month/day/year", for date -s
    QString time; // "hour:minute:second"
    int hour = 0;
};

// One time-zone step: `now` moved by h hours and m minutes the way the
// device has always done it: a negative hour gets 12 added, not 24, and a
// step past 31 December gives month 13 and day 12 of the next year (which
// date -s then refuses). Both are the device's established behaviour and
// are kept as they are.
ClockTexts timeZoneStep(const QDateTime &now, int h, int m);

// The texts connectSetDate passes to date -s (month first, no padding).
ClockTexts setDateTexts(int year, int month, int days, int hours, int minutes, int seconds);

// The hotter of the first two thermal readings ("<millidegrees>\n" each),
// in whole degrees; nothing when the output has fewer than two parts.
std::optional<int> maxTemperature(const QByteArray &catOutput);

// The LT6911 bridge upgrade from its two status nodes:
// 1 both report success, 2 either failed, 0 still running.
int bridgeStatus(const QByteArray &upgrade, const QByteArray &update);

// Output of a sysfs read as the kernel meant it: up to its first NUL byte.
QByteArray untilNul(const QByteArray &bytes);

// Whether a ping's output shows a reply.
bool pingAnswered(const QByteArray &pingOutput);

} // namespace BoardControl
