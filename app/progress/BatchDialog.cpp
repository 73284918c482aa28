#include "BatchDialog.h"

#include "App.h"
#include "AppSettingsDialog.h"
#include "ErrorsDialog.h"
#include "Label.h"
#include "Literals.h"
#include "RoundProgress.h"
#include "SimpleProgress.h"
#include "Variant.h"
#include "WrappingButton.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPointer>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

QString onOrOff(bool on)
{
    return on ? u"ON"_qs : u"OFF"_qs;
}

/// The word for an encoder quality of 0 to 127.
QString qualityWord(int quality)
{
    if (quality < 32) {
        return u"Low"_qs;
    }
    return quality < 86 ? u"Medium"_qs : u"High"_qs;
}

QString encodedSummary()
{
    return u"<H2><CENTER>Conversion Settings</CENTER></H2><CENTER> <TABLE>    <TR>        "
           "<TD>Sample Rate</TD><TD>: %1 Hz</TD>    </TR>    <TR>        <TD>Bitrate</TD><TD>: %2 "
           "kbps</TD>    </TR>    <TR>        <TD>Quality</TD><TD>: %3</TD>    </TR>    <TR>       "
           " "
           "<TD>Volume level normalization</TD><TD>: %4</TD>    </TR>    <TR>        <TD>Fade In & "
           "Out</TD><TD>: %5</TD>    </TR>    <TR>        <TD>Trim silence from start and "
           "end</TD><TD>: %6</TD>    </TR></TABLE> </CENTER>"_qs
               .arg(AppSettingsDialog::sampleRate())
               .arg(AppSettingsDialog::bitRate() / 1000)
               .arg(qualityWord(AppSettingsDialog::quality()),
                   onOrOff(AppSettingsDialog::normalizationActive()),
                   onOrOff(AppSettingsDialog::fadeInOutActive()),
                   onOrOff(AppSettingsDialog::trimSilenceActive()));
}

QString uncompressedSummary()
{
    return u"<H2><CENTER>Conversion Settings</CENTER></H2><CENTER> <TABLE>    <TR>        "
           "<TD>Sample Rate</TD><TD>: %1 Hz</TD>    </TR>    <TR>        <TD>Bits per "
           "Sample</TD><TD>: %2</TD>    </TR>    <TR>        <TD>Channels</TD><TD>: %3</TD>    "
           "</TR>    <TR>        <TD>Volume level normalization</TD><TD>: %4</TD>    </TR>    <TR> "
           "  "
           "     <TD>Fade In & Out</TD><TD>: %5</TD>    </TR>    <TR>        <TD>Trim silence from "
           "start and end</TD><TD>: %6</TD>    </TR></TABLE> </CENTER>"_qs
               .arg(AppSettingsDialog::sampleRate())
               .arg(AppSettingsDialog::bitsPerSample())
               .arg(AppSettingsDialog::channels())
               .arg(onOrOff(AppSettingsDialog::normalizationActive()),
                   onOrOff(AppSettingsDialog::fadeInOutActive()),
                   onOrOff(AppSettingsDialog::trimSilenceActive()));
}

/// The settings of the run in short; empty for a converter of an unknown kind.
QString summary()
{
    switch (currentVariant()) {
    case Variant::Wav:
        return uncompressedSummary();
    case Variant::M4a:
    case Variant::Mp3:
        return encodedSummary();
    case Variant::Unknown:
        break;
    }
    return {};
}

}

BatchDialog::BatchDialog(QWidget *parent)
    : QDialog(parent)
{
    //: Follows the name of the application in the title of the window; keep the leading blank.
    setWindowTitle(QCoreApplication::applicationName() + tr(" Batch Process"));
    setMinimumWidth(500);
    createWidgets();
    createLayout();
    connectSignals();
}

void BatchDialog::createWidgets()
{
    m_pprogressFile = new QMWidgets::SimpleProgress(this);
    m_pprogressFile->setText(tr("ANALYZING"));
    m_pprogressFile->setMinimumHeight(28);
    m_pprogressTotal = new QMWidgets::RoundProgress(this);
    m_pcmdPause = new QPushButton(tr("Pause"), this);
    m_pcmdPause->setCheckable(true);
    m_pcmdStop = new QPushButton(tr("Stop"), this);
    m_pcmdClose = new QPushButton(tr("Close"), this);
    m_pcmdErrors = new WrappingButton(tr("One or more errors have occured!"), this);
    // A stray Enter is not to stop or pause a run; only Close is a default, once there is nothing
    // else.
    for (QPushButton *button : {m_pcmdPause, m_pcmdStop, m_pcmdClose, m_pcmdErrors}) {
        button->setAutoDefault(false);
    }
    m_pcmdPause->setObjectName(u"BatchPauseButton"_qs);
    m_pcmdClose->setObjectName(u"BatchPauseButton"_qs);
    m_pcmdStop->setObjectName(u"BatchStopButton"_qs);
    m_pcmdErrors->setObjectName(u"BatchStopButton"_qs);
    m_pcmdClose->hide();
    m_pcmdErrors->hide();
    m_plblPreview = new QMWidgets::Label(this);
    m_plblPreview->setObjectName(u"PreviewLabel"_qs);
    m_plblPreview->setAlignment(Qt::AlignCenter);
}

void BatchDialog::createLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_pcmdPause);
    buttons->addWidget(m_pcmdStop);
    buttons->addWidget(m_pcmdErrors);
    buttons->addWidget(m_pcmdClose);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_plblPreview);
    layout->addWidget(m_pprogressTotal, 1);
    layout->addWidget(m_pprogressFile);
    layout->addLayout(buttons);
}

void BatchDialog::connectSignals()
{
    connect(m_pcmdPause, &QPushButton::clicked, this, &BatchDialog::slotPause);
    connect(m_pcmdStop, &QPushButton::clicked, this, &BatchDialog::slotAccept);
    connect(m_pcmdStop, &QPushButton::clicked, this, &BatchDialog::slotStop);
    connect(m_pcmdClose, &QPushButton::clicked, this, &BatchDialog::accept);
    connect(m_pcmdErrors, &QPushButton::clicked, this, &BatchDialog::slotShowErrors);
    connect(this, &BatchDialog::rejected, this, &BatchDialog::slotStop);
}

void BatchDialog::slotPause()
{
    const bool pause = m_pcmdPause->isChecked();
    m_pcmdPause->setText(pause ? tr("Resume") : tr("Pause"));
    emit paused(pause);
}

void BatchDialog::slotStop()
{
    emit stop();
}

void BatchDialog::slotProgressChanged(int percent)
{
    m_pprogressFile->setValue(percent);
    m_pprogressTotal->setValue(percent);
    if (percent < 100) {
        return;
    }
    m_pcmdClose->show();
    m_pcmdClose->setDefault(true);
    m_pcmdClose->setFocus();
    m_pcmdStop->hide();
    m_pcmdPause->hide();
    m_pprogressFile->setText(tr("DONE"));
}

void BatchDialog::slotFileProgressChanged(int percent)
{
    m_pprogressFile->setValue(percent);
}

void BatchDialog::slotAccept()
{
    accept();
}

// By value, as its senders are wired.
void BatchDialog::slotShowCurrentFile(QString text) // NOLINT(performance-unnecessary-value-param)
{
    m_pprogressFile->setText(text);
}

void BatchDialog::slotSetErrors(QString errors)
{
    m_strErrors = std::move(errors);
    m_pcmdErrors->show();
}

void BatchDialog::slotShowErrors()
{
    QWidget *page = QMWidgets::App::mainWidget();
    // On the heap: the page, its parent, may go while the dialog is open.
    const QPointer<ErrorsDialog> dialog = new ErrorsDialog(page);
    dialog->setText(m_strErrors);
    if (page != nullptr) {
        dialog->resize(page->width(), page->height() / 3);
    }
    dialog->exec();
    delete dialog;
}

void BatchDialog::slotNotEnoughtFreeSpace()
{
    m_pprogressFile->setText(tr("NOT ENOUGH FREE SPACE"));
    {
        // The run has paused itself: it isn't to be told.
        const QSignalBlocker blocker(m_pcmdPause);
        m_pcmdPause->setChecked(true);
        m_pcmdPause->setText(tr("Resume"));
    }
    QMessageBox::warning(QMWidgets::App::mainWidget(), tr("Not enough free space"),
        tr("<H3>Not enough free space</H3>Conversion paused.<br>Free up space and click \"Resume\"."
           "<br>To stop conversion, click \"Stop\"."),
        QMessageBox::Ok);
}

void BatchDialog::showEvent(QShowEvent *event)
{
    if (event->spontaneous()) { // back from being minimised, with the run as it is
        QDialog::showEvent(event);
        return;
    }
    m_pcmdPause->setChecked(false);
    m_pcmdPause->setText(tr("Pause"));
    m_pprogressFile->setValue(0);
    m_plblPreview->setPixmap(QPixmap());
    m_plblPreview->setText(summary());
    QDialog::showEvent(event);
    if (const QWidget *page = parentWidget()) {
        // Contents over contents: the window manager counts its frame by this, not by a move.
        setGeometry(QRect(page->window()->mapToGlobal(QPoint()), size()));
    }
}

void BatchDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
}
