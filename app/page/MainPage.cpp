#include "MainPage.h"

#include "AddButtonAction.h"
#include "App.h"
#include "AppSettingsDialog.h"
#include "AudioPlayer.h"
#include "BatchRun.h"
#include "BatchThread.h"
#include "DropWidget.h"
#include "Label.h"
#include "ListView.h"
#include "Literals.h"
#include "MediaSearchDialog.h"
#include "Os.h"
#include "PathBox.h"
#include "PlayListModel.h"
#include "PromoMenuBar.h"
#include "SimpleBookmark.h"
#include "TracksListDelegate.h"
#include <algorithm>
#include <iterator>
#include <QComboBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>

using QMMultiMedia::AudioPlayer;
using QMMultiMedia::MediaSearchDialog;
using QMMultiMedia::PlayListModel;
using QMWidgets::App;
using QMWidgets::DropWidget;

namespace {

// Keys of the settings store, with their defaults.
const QLatin1String keyWidth("Width");
const QLatin1String keyHeight("Height");
const QLatin1String keyDestination("DestinationPath");
constexpr int defaultWidth = 370;
constexpr int defaultHeight = 600;

constexpr int modesHeight = 140;

/// How long a window manager takes to draw its frame, and how much of it may be off the screen.
constexpr int frameDelayMs = 250;
constexpr int frameTolerance = 8;

enum DestinationRow
{
    CurrentRow,
    ChangeRow,
    ResetRow
};

}

MainPage::MainPage(QWidget *parent)
    : PromoMainPage(parent, false)
    , m_pbookmark(new QMWidgets::SimpleBookmark(this))
{
    setMinimumWidth(420);
    setObjectName(u"MainPage"_qs);
    createDropArea();
    QLayout *destinationRow = createDestinationRow();
    createList();
    createButtons();
    createTimers();
    m_psearchDialog = new MediaSearchDialog(this);
    createPlayWidgets();
    createTrackMenu();
    connectPlayer();
    createLayout(destinationRow);
    createKeys();
    restoreSize();
    m_pstkModes->setCurrentWidget(m_pdropWidget);
    AudioPlayer::instance()->setVolume(100.0);
    slotUpdateInfo();
}

MainPage::~MainPage()
{
    if (!isFullScreen()) {
        App::setSettingsValue(keyWidth, width());
        App::setSettingsValue(keyHeight, height());
    }
    stopAll();
    if (!m_lstRuns.isEmpty()) {
        // The file at hand may take a while: no window is left on the screen that doesn't answer.
        hide();
        QGuiApplication::sync();
    }
    // The runs wait for their threads; they are to be gone before the members that they use.
    qDeleteAll(m_lstRuns);
}

void MainPage::createDropArea()
{
    m_pdropWidget = new DropWidget(this);
    m_pdropWidget->setHideAfterDrop(false);
    m_pdropWidget->setOpenMode(DropWidget::OpenMode::Files);
    m_pdropWidget->setFixedHeight(modesHeight);
    m_pdropWidget->setButtonText(tr("Click to open the folder with audio/video files"));
    m_pdropWidget->setAreaText(tr("<H2><center>Drop the audio/video files<br>and folders here<br>"
                                  "<bold>+</bold></center></H2>"));
    connect(m_pdropWidget, &DropWidget::dropped, this, &MainPage::slotFilesDropped,
        Qt::QueuedConnection);
}

QLayout *MainPage::createDestinationRow()
{
    m_pcbxDestination = new PathBox(this);
    m_pcbxDestination->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_pcbxDestination->addItem(QString(), CurrentRow);
    m_pcbxDestination->addItem(tr("Change destination folder..."), ChangeRow);
    m_pcbxDestination->addItem(tr("Reset"), ResetRow);
    m_pcbxDestination->setAccessibleName(tr("Destination folder"));
    showDestination();
    connect(m_pcbxDestination, QOverload<int>::of(&QComboBox::activated), this,
        &MainPage::slotDestinationActivated);

    auto *browse = new QPushButton(this);
    browse->setFlat(true);
    browse->setIcon(QPixmap(u":/Button_GoTo.png"_qs));
    browse->setObjectName(u"BrowseButton"_qs);
    browse->setMinimumHeight(32);
    browse->setToolTip(tr("Opens the destination folder in finder"));
    browse->setAccessibleName(tr("Open the destination folder"));
    connect(browse, &QPushButton::clicked, this, &MainPage::slotGotoFilesLocation);

    auto *label = new QLabel(tr("Destination:"), this);
    label->setObjectName(u"SimpleLabel"_qs);
    label->setBuddy(m_pcbxDestination);

    auto *row = new QHBoxLayout;
    row->setMargin(5);
    row->setSpacing(4);
    row->addWidget(label);
    row->addWidget(m_pcbxDestination);
    row->addWidget(browse);
    return row;
}

void MainPage::createList()
{
    m_pmodel = new PlayListModel(this);
    m_pdelegate = new TracksListDelegate(this);
    m_plstTracks = new ListView(this);
    m_plstTracks->setAcceptDrops(true);
    m_plstTracks->setDropIndicatorShown(true);
    m_plstTracks->setMouseTracking(true);
    m_plstTracks->viewport()->setAttribute(Qt::WA_Hover);
    m_plstTracks->setAttribute(Qt::WA_MacShowFocusRect, false);
    m_plstTracks->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_plstTracks->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_plstTracks->setModel(m_pmodel);
    m_plstTracks->setItemDelegate(m_pdelegate);
    m_plstTracks->setAccessibleName(tr("Tracks"));
    connect(
        m_plstTracks, &ListView::dropped, this, &MainPage::slotFilesDropped, Qt::QueuedConnection);

    m_plblInfo = new QLabel(m_plstTracks);
    m_plblInfo->setObjectName(u"InfoLabel"_qs);
    m_plblInfo->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *overlay = new QVBoxLayout(m_plstTracks);
    overlay->setMargin(0);
    overlay->setSpacing(0);
    overlay->addStretch(1);
    overlay->addWidget(m_plblInfo);
    m_plstTracks->setLowerOverlay(m_plblInfo);

    connect(m_pmodel, &PlayListModel::modelReset, this, &MainPage::slotUpdateInfo);
    connect(m_pmodel, &PlayListModel::rowsRemoved, this, &MainPage::slotUpdateInfo);
}

void MainPage::createButtons()
{
    m_pcmdConvert = new QPushButton(tr("Convert"), this);
    m_pcmdConvert->setFlat(true);
    m_pcmdConvert->setObjectName(u"RunBatchButton"_qs);
    connect(m_pcmdConvert, &QPushButton::clicked, this, &MainPage::slotDoIt);

    m_pcmdSettings = new QPushButton(this);
    m_pcmdSettings->setFlat(true);
    m_pcmdSettings->setObjectName(u"ExportSettingsButton"_qs);
    m_pcmdSettings->setToolTip(tr("Settings"));
    m_pcmdSettings->setAccessibleName(tr("Settings"));
    connect(m_pcmdSettings, &QPushButton::clicked, this, &MainPage::slotShowSettings);
}

void MainPage::createTimers()
{
    m_ptimerOpenFiles = new QTimer(this);
    m_ptimerOpenFiles->setInterval(100);
    m_ptimerOpenFiles->setSingleShot(true);
    connect(m_ptimerOpenFiles, &QTimer::timeout, this, &MainPage::slotOpenFiles);
    if (App *application = App::theApp()) {
        connect(application, &App::fileOpenRequest, this, &MainPage::slotFileOpenRequest);
    }

    m_ptimerPlayInfo = new QTimer(this);
    m_ptimerPlayInfo->setInterval(1000);
    connect(m_ptimerPlayInfo, &QTimer::timeout, this, &MainPage::slotUpdatePlayInfo);
}

void MainPage::createLayout(QLayout *destinationRow)
{
    m_pwgtPlayPage = createPlayPage();
    m_pstkModes = new QStackedWidget(this);
    m_pstkModes->setObjectName(u"m_pstkModes"_qs);
    m_pstkModes->setFixedHeight(modesHeight);
    m_pstkModes->addWidget(m_pdropWidget);
    m_pstkModes->addWidget(m_pwgtPlayPage);
    auto *modes = new QVBoxLayout;
    modes->setMargin(2);
    modes->addWidget(m_pstkModes);

    auto *buttons = new QHBoxLayout;
    buttons->setMargin(8);
    buttons->setSpacing(3);
    buttons->addStretch(0);
    buttons->addWidget(m_pcmdSettings);
    buttons->addWidget(m_pcmdConvert);
    buttons->addStretch(0);

    auto *page = new QVBoxLayout(this);
    page->setMargin(0);
    page->setSpacing(0);
    page->addWidget(promoMenuBar());
    page->addLayout(destinationRow);
    page->addWidget(m_plstTracks);
    page->addLayout(modes);
    page->addLayout(buttons);
}

void MainPage::createKeys()
{
    auto *open = new QShortcut(QKeySequence::Open, this);
    connect(open, &QShortcut::activated, m_pdropWidget, &DropWidget::slotOpenClicked);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *convert = new QShortcut(QKeySequence(static_cast<int>(Qt::CTRL) | key), this);
        connect(convert, &QShortcut::activated, m_pcmdConvert, &QPushButton::click);
    }
    m_plstTracks->installEventFilter(this);

    // From top to bottom, as the eye goes; the order in which the widgets were made is another.
    QList<QWidget *> order {m_plstTracks};
    const auto openButtons = m_pdropWidget->findChildren<QPushButton *>();
    std::copy(openButtons.begin(), openButtons.end(), std::back_inserter(order));
    order << m_psldTimeLine << m_pcmdStop << m_pcmdPlayAndPause << m_pcmdSettings << m_pcmdConvert;
    for (int i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
}

void MainPage::restoreSize()
{
    const QSize stored(App::settingsValue(keyWidth, defaultWidth).toInt(),
        App::settingsValue(keyHeight, defaultHeight).toInt());
    resize(stored);
}

void MainPage::showEvent(QShowEvent *event)
{
    PromoMainPage::showEvent(event);
    if (!event->spontaneous()) { // a window that was minimised keeps the size that it had
        // By then the window manager has told how large its frame is.
        QTimer::singleShot(frameDelayMs, this, [this] { fitToScreen(); });
    }
}

/// On a small screen the edges with their buttons would be out of reach, also with a size from a
/// larger one.
void MainPage::fitToScreen()
{
    if (!isWindow() || isFullScreen() || isMaximized()) {
        return;
    }
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    const int wide = frame.width() - room.width();
    const int high = frame.height() - room.height();
    const QSize size(wide > frameTolerance ? width() - wide : width(),
        high > frameTolerance ? height() - high : height());
    if (size != this->size()) {
        resize(size);
        move(wide > frameTolerance ? room.left() : x(), high > frameTolerance ? room.top() : y());
    }
}

void MainPage::resizeEvent(QResizeEvent *event)
{
    PromoMainPage::resizeEvent(event);
}

QString MainPage::destinationPath() const
{
    return App::settingsValue(keyDestination, App::musicDirectory(true)).toString();
}

void MainPage::setDestinationPath(const QString &path)
{
    const QString separator = u"/"_qs;
    App::setSettingsValue(keyDestination, path.endsWith(separator) ? path : path + separator);
}

void MainPage::showDestination()
{
    const QString path = sandboxToRealDir(destinationPath());
    m_pcbxDestination->setItemText(CurrentRow, path);
    m_pcbxDestination->setCurrentIndex(CurrentRow);
    m_pcbxDestination->setToolTip(path);
}

void MainPage::slotDestinationActivated(int row)
{
    if (row == ChangeRow) {
        const QString chosen = QFileDialog::getExistingDirectory(
            this, tr("Set destination folder"), destinationPath(), QFileDialog::ShowDirsOnly);
        if (!chosen.isEmpty()) {
            setDestinationPath(chosen);
            m_pbookmark->createBookmark(QUrl::fromLocalFile(destinationPath()));
        }
    } else if (row == ResetRow) {
        setDestinationPath(App::musicDirectory(true));
    }
    showDestination();
}

void MainPage::slotGotoFilesLocation() const
{
    Os::openFolderAndSelectFile(destinationPath());
}

QString MainPage::sandboxToRealDir(const QString &path)
{
    QString real;
    const QStringList parts = path.split(u'/');
    for (const QString &part : parts) {
        const bool ofContainer = part.isEmpty() || part == u"Library"_qs || part == u"Containers"_qs
            || part == u"Data"_qs || part.startsWith(u"com.velmora."_qs);
        if (!ofContainer) {
            real += u'/' + part;
        }
    }
    return real + u'/';
}

void MainPage::slotShowSettings()
{
    AppSettingsDialog dialog(window());
    QEventLoop loop;
    connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    dialog.open();
    loop.exec();
}

void MainPage::slotUpdateInfo()
{
    const int count = m_pmodel->rowCount();
    m_pcmdConvert->setEnabled(count != 0);
    const QString text = count == 1 ? tr("%1 media file") : tr("%1 media files");
    m_plblInfo->setText(u"<H2><CENTER>%1</CENTER></H2>"_qs.arg(text.arg(count)));
}

void MainPage::slotRemove()
{
    if (m_indexTrack.isValid() && m_indexTrack.row() < m_pmodel->rowCount()) {
        m_pmodel->removeRows(m_indexTrack.row(), 1, QModelIndex());
    }
}

bool MainPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_plstTracks && event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const bool plain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (plain && trackKeyPressed(press->key())) {
            return true;
        }
    }
    return PromoMainPage::eventFilter(watched, event);
}

/// A key of the list's current row; true if it was used.
bool MainPage::trackKeyPressed(int key)
{
    const QModelIndex current = m_plstTracks->currentIndex();
    if (!current.isValid()) {
        return false;
    }
    switch (key) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        slotPlay(current);
        return true;
    case Qt::Key_Delete:
        m_pmodel->removeRows(current.row(), 1, QModelIndex());
        return true;
    case Qt::Key_Menu: {
        QStyleOptionViewItem option;
        option.rect = m_plstTracks->visualRect(current);
        slotButtonClicked(current, m_pdelegate->buttonArea(option).topLeft());
        return true;
    }
    default:
        return false;
    }
}
