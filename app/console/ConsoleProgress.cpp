#include "ConsoleProgress.h"

#include "Literals.h"
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <QCoreApplication>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int barWidth = 24;
/// Below this the speed so far says too little about the rest.
constexpr int firstEstimatePercent = 2;

void put(const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

int terminalWidth()
{
    winsize size {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

}

ConsoleProgress::ConsoleProgress(int total)
    : m_total(std::max(1, total))
    , m_terminal(::isatty(STDERR_FILENO) == 1)
{
    m_timer.start();
}

void ConsoleProgress::setText(const QString &text)
{
    m_text = printable(text);
    if (m_terminal) {
        draw();
    } else if (text != QCoreApplication::translate("BatchWorker", "ANALYZING")) {
        note(m_text + timeLeft());
    }
}

void ConsoleProgress::setFilePercent(int percent)
{
    m_filePercent = percent;
    draw();
}

void ConsoleProgress::setTotalPercent(int percent)
{
    m_totalPercent = percent;
    m_filePercent = 0;
    draw();
}

void ConsoleProgress::note(const QString &line)
{
    clear();
    put(line + u"\n"_qs);
    draw();
}

void ConsoleProgress::finish()
{
    clear();
    m_finished = true;
}

QString ConsoleProgress::printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control) {
            c = u'?';
        }
    }
    return text;
}

QString ConsoleProgress::clock(qint64 seconds)
{
    const qint64 hours = seconds / 3600;
    const qint64 minutes = seconds / 60 % 60;
    return hours > 0 ? QString::asprintf("%lld:%02lld:%02lld", hours, minutes, seconds % 60)
                     : QString::asprintf("%lld:%02lld", minutes, seconds % 60);
}

QString ConsoleProgress::timeLeft() const
{
    const double done = m_totalPercent + static_cast<double>(m_filePercent) / m_total;
    if (done < firstEstimatePercent || done >= 100.0) {
        return {};
    }
    const double left = static_cast<double>(m_timer.elapsed()) * (100.0 - done) / done / 1000.0;
    return u"  ("_qs + clock(std::llround(left)) + u" left)"_qs;
}

void ConsoleProgress::draw()
{
    if (!m_terminal || m_finished) {
        return;
    }
    const int filled = barWidth * m_totalPercent / 100;
    const QString line = u"["_qs + QString(filled, u'#') + QString(barWidth - filled, u'.')
        + QString::asprintf("] %3d %%", m_totalPercent) + timeLeft() + u"  "_qs + m_text
        + QString::asprintf(" %d %%", m_filePercent);
    put(u"\r\x1b[K"_qs + line.left(terminalWidth() - 1));
}

void ConsoleProgress::clear() const
{
    if (m_terminal && !m_finished) {
        put(u"\r\x1b[K"_qs);
    }
}
