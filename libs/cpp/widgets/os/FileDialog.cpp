#include "FileDialog.h"

#include <QEventLoop>
#include <QPointer>

namespace QMWidgets {

namespace {

struct Request
{
    QWidget *pwgt;
    QString strCaption;
    QString strDir;
    QString strFilter;
    QString *pstrSelectedFilter;
    QFileDialog::Options options;
};

QStringList askAsSheet(
    const Request &request, QFileDialog::FileMode mode, QFileDialog::AcceptMode acceptMode)
{
    const QPointer<QFileDialog> pdlg(new QFileDialog(request.pwgt, request.strCaption,
        request.strDir, request.strFilter)); // gone with its parent, or below
    pdlg->setFileMode(mode);
    pdlg->setAcceptMode(acceptMode);
    pdlg->setOptions(request.options);
    if (request.pstrSelectedFilter != nullptr && !request.pstrSelectedFilter->isEmpty()) {
        pdlg->selectNameFilter(*request.pstrSelectedFilter);
    }
    QEventLoop loop;
    QObject::connect(pdlg, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(pdlg, &QObject::destroyed, &loop, &QEventLoop::quit);
    pdlg->open();
    loop.exec();
    QStringList lstFiles;
    if (!pdlg.isNull() && pdlg->result() == QDialog::Accepted) {
        lstFiles = pdlg->selectedFiles();
        if (request.pstrSelectedFilter != nullptr) {
            *request.pstrSelectedFilter = pdlg->selectedNameFilter();
        }
    }
    delete pdlg;
    return lstFiles;
}

}

QString FileDialog::getOpenFileName(QWidget *pwgt, const QString &strCaption, const QString &strDir,
    const QString &strFilter, QString *pstrSelectedFilter, QFileDialog::Options options)
{
    if (pwgt == nullptr) {
        return QFileDialog::getOpenFileName(
            pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options);
    }
    return askAsSheet({pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options},
        QFileDialog::ExistingFile, QFileDialog::AcceptOpen)
        .value(0);
}

QString FileDialog::getSaveFileName(QWidget *pwgt, const QString &strCaption, const QString &strDir,
    const QString &strFilter, QString *pstrSelectedFilter, QFileDialog::Options options)
{
    if (pwgt == nullptr) {
        return QFileDialog::getSaveFileName(
            pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options);
    }
    return askAsSheet({pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options},
        QFileDialog::AnyFile, QFileDialog::AcceptSave)
        .value(0);
}

QStringList FileDialog::getOpenFileNames(QWidget *pwgt, const QString &strCaption,
    const QString &strDir, const QString &strFilter, QString *pstrSelectedFilter,
    QFileDialog::Options options)
{
    if (pwgt == nullptr) {
        return QFileDialog::getOpenFileNames(
            pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options);
    }
    return askAsSheet({pwgt, strCaption, strDir, strFilter, pstrSelectedFilter, options},
        QFileDialog::ExistingFiles, QFileDialog::AcceptOpen);
}

} // namespace QMWidgets
