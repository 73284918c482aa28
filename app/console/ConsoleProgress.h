#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QVector>

/// The progress of a run on the standard error stream: on a terminal a bar that is drawn anew, with
/// the time left from the speed so far; elsewhere a line a file.
class ConsoleProgress
{
public:
    /// @param total steps of the run, at least 1
    explicit ConsoleProgress(int total);

    /// A new text: a file's name or the name of a stage.
    void setText(const QString &text);
    /// Percent of the file at hand.
    void setFilePercent(int percent);
    /// Percent of the whole run.
    void setTotalPercent(int percent);
    /// A line of its own, above the bar.
    void note(const QString &line);
    /// Takes the bar away; nothing is drawn any more.
    void finish();

    /// "1:05:09" or "3:07" for seconds; for the time left.
    static QString clock(qint64 seconds);
    /// The text without control characters: a name may hold line feeds and escape sequences, and
    /// neither a line nor a terminal is to obey them.
    static QString printable(QString text);

private:
    void draw();
    void clear() const;
    QString timeLeft() const;

    int m_total = 1;
    int m_filePercent = 0;
    int m_totalPercent = 0;
    bool m_terminal = false;
    bool m_finished = false;
    QString m_text;
    QElapsedTimer m_timer;
};
