#pragma once

#include <QFileDialog>
#include <QStringList>

namespace QMWidgets {

/// File dialogs that are shown as a sheet of their parent, so that the rest of the application goes
/// on. Parameters and results are those of the QFileDialog functions of the same names.
class FileDialog
{
public:
    FileDialog() = delete;

    static QString getOpenFileName(QWidget *pwgt = nullptr, const QString &strCaption = QString(),
        const QString &strDir = QString(), const QString &strFilter = QString(),
        QString *pstrSelectedFilter = nullptr,
        QFileDialog::Options options = QFileDialog::Options());

    static QString getSaveFileName(QWidget *pwgt = nullptr, const QString &strCaption = QString(),
        const QString &strDir = QString(), const QString &strFilter = QString(),
        QString *pstrSelectedFilter = nullptr,
        QFileDialog::Options options = QFileDialog::Options());

    static QStringList getOpenFileNames(QWidget *pwgt = nullptr,
        const QString &strCaption = QString(), const QString &strDir = QString(),
        const QString &strFilter = QString(), QString *pstrSelectedFilter = nullptr,
        QFileDialog::Options options = QFileDialog::Options());
};

} // namespace QMWidgets
