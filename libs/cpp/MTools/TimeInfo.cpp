#include "TimeInfo.h"

#include <algorithm>
#include <QDateTime>

namespace MTools {

QTime TimeInfo::msecsToTime(const qint64 &msecs)
{
    constexpr qint64 msecsOfDay = 24LL * 60 * 60 * 1000;
    return QTime::fromMSecsSinceStartOfDay(
        static_cast<int>(std::max<qint64>(msecs, 0) % msecsOfDay));
}

QString createTimeStamp()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return QString::asprintf("%04d-%02d-%02d_%02d:%02d:%02d:%03d", date.year(), date.month(),
        date.day(), time.hour(), time.minute(), time.second(), time.msec());
}

}
