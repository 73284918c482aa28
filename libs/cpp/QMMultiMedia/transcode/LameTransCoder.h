#pragma once

#include <QObject>
#include <QString>

namespace QMMultiMedia {

/// Runs a command-line MP3 encoder on a WAV file, with a cover image, in a shell.
///
/// The result is the file "test.mp3" in the application's support directory.
class LameTransCoder : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LameTransCoder)

public:
    /// All three go into a shell's command line as they are, so blanks in them need a backslash.
    LameTransCoder(
        const QString &tool, const QString &cover, const QString &input, QObject *parent = nullptr);

    /// Starts the encoder detached: how it ends isn't told.
    void start();

private:
    QString m_strTool;
    QString m_strCover;
    QString m_strInput;
};

}
