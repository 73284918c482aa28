#include "AppSettingsDialog.h"

#include "AacRates.h"
#include "App.h"
#include "AppSettings.h"
#include "DecoratedDial.h"
#include "FadeWidget.h"
#include "Literals.h"
#include "PageArea.h"
#include "Variant.h"

#include <algorithm>
#include <limits>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLCDNumber>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QTabWidget>
#include <QTimer>

namespace {

constexpr int LongestFadeSeconds = 33;

/// An English text keeps its order in a window that runs from right to left.
QString inOwnDirection(const QString &text)
{
    const QChar embedding(0x202A);
    const QChar end(0x202C);
    return QGuiApplication::isRightToLeft() ? embedding + text + end : text;
}

void selectValue(QComboBox *box, int value)
{
    box->setCurrentIndex(box->findData(value, Qt::UserRole));
}

int selectedValue(const QComboBox *box)
{
    return box->currentData(Qt::UserRole).toInt();
}

template <typename T> void store(const AppSettings::Key<T> &key, const QVariant &value)
{
    QMWidgets::App::setSettingsValue(QLatin1String(key.name), value);
}

QVBoxLayout *createGroupLayout(QGroupBox *group, int margin, int spacing)
{
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    return layout;
}

}

AppSettingsDialog::AppSettingsDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"SettingsDialog"_qs);
    //: Follows the name of the application in the title of the window; keep the leading blank.
    setWindowTitle(QCoreApplication::applicationName() + tr(" Settings"));
    // A window of our own flags has no close button unless it is asked for.
    setWindowFlags(
        Qt::Tool | Qt::WindowSystemMenuHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    createWidgets();
    createLayout();
    slotLoadSettings();
    connectSignals();
}

void AppSettingsDialog::createWidgets()
{
    m_pcmdOk = new QPushButton(tr("Ok"), this);
    m_pcmdCancel = new QPushButton(tr("Cancel"), this);
    for (QPushButton *button : {m_pcmdOk, m_pcmdCancel}) {
        button->setObjectName(u"PushButton"_qs);
        button->setFlat(true);
        button->setMinimumHeight(32);
    }
    m_pcmdOk->setMinimumWidth(75);
    m_pcmdOk->setDefault(true);
    createFormatBoxes();
    createCheckBoxes();
}

void AppSettingsDialog::createFormatBoxes()
{
    m_pcbxChannels = new QComboBox(this);
    m_pcbxChannels->setObjectName(u"m_pcbxChannels"_qs);
    m_pcbxChannels->addItem(tr("1 (Mono)"), 1);
    m_pcbxChannels->addItem(tr("2 (Stereo)"), 2);

    m_pcbxBitsPerSample = new QComboBox(this);
    for (const int bits : {16, 24, 32}) {
        m_pcbxBitsPerSample->addItem(u"%1 Bits"_qs.arg(bits), bits);
    }

    m_pcbxSampleRate = new QComboBox(this);
    m_pcbxSampleRate->setObjectName(u"m_pcbxSampleRate"_qs);
    const int highestRate
        = currentVariant() == Variant::Mp3 ? 48000 : std::numeric_limits<int>::max();
    for (const AppSettings::Rate &rate : AppSettings::SampleRates) {
        if (rate.value <= highestRate) {
            m_pcbxSampleRate->addItem(inOwnDirection(QString::fromLatin1(rate.text)), rate.value);
        }
    }

    m_pcbxFormat = new QComboBox(this);
    m_pcbxFormat->setObjectName(u"m_pcbxFormat"_qs);
    m_pcbxFormat->addItem(codecName(0), codecName(0));

    m_pcbxDestination = new QComboBox(this);
    m_pcbxDestination->addItem(u"-//-"_qs, 1);
    m_pcbxDestination->addItem(u"Change destination folder..."_qs, 2);
    m_pcbxDestination->addItem(u"Reset"_qs, 2);

    m_pcbxBitRate = new QComboBox(this);
    m_pcbxBitRate->setObjectName(u"m_pcbxBitRate"_qs);
    for (const AppSettings::Rate &rate : AppSettings::BitRates) {
        m_pcbxBitRate->addItem(tr(rate.text), rate.value);
    }

    m_pcbxQuality = new QComboBox(this);
    m_pcbxQuality->setObjectName(u"m_pcbxQuality"_qs);
    m_pcbxQuality->addItem(tr("High"), 127);
    m_pcbxQuality->addItem(tr("Medium"), 64);
    m_pcbxQuality->addItem(tr("Low"), 0);

    m_plblBitRate = new QLabel(tr("BitRate"), this);
    m_plblBitsPerSample = new QLabel(tr("Bits per Sample:"), this);
    m_plblChannels = new QLabel(tr("Channels:"), this);
    m_plblQuality = new QLabel(tr("Quality:"), this);

    const auto changed = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_pcbxSampleRate, changed, this, &AppSettingsDialog::slotSampleRateChanged);
    connect(m_pcbxBitRate, changed, this, &AppSettingsDialog::slotBitRateChanged);
    connect(m_pcbxQuality, changed, this, &AppSettingsDialog::slotQualityChanged);
}

void AppSettingsDialog::createCheckBoxes()
{
    m_pchkCopyMetaTags = new QCheckBox(tr("Copy meta tags (id3) from source"), this);
    m_pchkCopyImages = new QCheckBox(tr("Copy image files from source"), this);
    m_pchkCopyTexts = new QCheckBox(tr("Copy text files from source"), this);
    m_pchkCopyEntireContent
        = new QCheckBox(tr("Copy entire non-converted content from source"), this);
    m_pchkFolderStructure = new QCheckBox(tr("Preserve folder structure of the source"), this);
    m_pchkTrimSilence = new QCheckBox(tr("Trim silence from start and end"), this);
    m_pchkPlaySound = new QCheckBox(tr("Play sound"), this);
    m_pchkOpenFolder = new QCheckBox(tr("Open the destination folder"), this);
    m_pchkClearList = new QCheckBox(tr("Clear the list"), this);
}

void AppSettingsDialog::createLayout()
{
    auto *tabs = new QTabWidget(this);
    // From wherever the focus is: a combo box would keep these keys.
    for (const QKeySequence::StandardKey key :
        {QKeySequence::NextChild, QKeySequence::PreviousChild}) {
        connect(new QShortcut(key, this), &QShortcut::activated, tabs,
            [tabs] { tabs->setCurrentIndex(1 - tabs->currentIndex()); });
    }
    tabs->addTab(new PageArea(generalTab(), tabs), tr("General"));
    tabs->addTab(new PageArea(effectsTab(), tabs), tr("Operations"));

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(10, 10, 10, 10);
    buttons->addStretch(1);
    buttons->addWidget(m_pcmdOk);
    buttons->addWidget(m_pcmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(10);
    layout->addWidget(tabs, 1);
    layout->addLayout(buttons);
    QWidget *previous = tabs;
    for (QWidget *next : QList<QWidget *> {m_pcbxSampleRate, m_pcbxBitRate, m_pcbxBitsPerSample,
             m_pcbxChannels, m_pcbxQuality, m_pchkFolderStructure, m_pchkCopyMetaTags,
             m_pchkCopyImages, m_pchkCopyTexts, m_pchkCopyEntireContent, m_pchkPlaySound,
             m_pchkOpenFolder, m_pcmdOk, m_pcmdCancel}) {
        setTabOrder(previous, next);
        previous = next;
    }
    m_pcbxSampleRate->setFocus();
}

void AppSettingsDialog::connectSignals()
{
    connect(m_pcmdOk, &QPushButton::clicked, this, &AppSettingsDialog::slotSaveSettings);
    connect(m_pcmdCancel, &QPushButton::clicked, this, &AppSettingsDialog::reject);
}

QWidget *AppSettingsDialog::generalTab()
{
    auto *page = new QWidget;
    m_pgrpSettings = formatGroup();
    m_pgrpSourceDestination = sourceGroup();
    m_pgrpAfterConversion = afterConversionGroup();

    auto *browse = new QPushButton(page);
    browse->setFlat(true);
    browse->setIcon(QIcon(u":/Button_GoTo.png"_qs));
    browse->setObjectName(u"BrowseButton"_qs);
    browse->setMinimumHeight(32);
    browse->setToolTip(tr("Opens the destination folder in finder"));
    connect(browse, &QPushButton::clicked, this, &AppSettingsDialog::slotGotoFilesLocation);
    browse->hide();

    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(10);
    for (QGroupBox *group : {m_pgrpSettings, m_pgrpSourceDestination, m_pgrpAfterConversion}) {
        layout->addStretch(1);
        layout->addWidget(group);
    }
    applyVariant();
    return page;
}

QGroupBox *AppSettingsDialog::formatGroup()
{
    auto *group = new QGroupBox;
    auto *form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(3);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("Sample Rate:"), m_pcbxSampleRate);
    const QPair<QLabel *, QComboBox *> rows[]
        = {{m_plblBitRate, m_pcbxBitRate}, {m_plblBitsPerSample, m_pcbxBitsPerSample},
            {m_plblChannels, m_pcbxChannels}, {m_plblQuality, m_pcbxQuality}};
    const QList<QWidget *> hidden = hiddenWidgets();
    for (const auto &[label, box] : rows) {
        label->setBuddy(box);
        // A hidden row would leave its spacing behind.
        if (!hidden.contains(box)) {
            form->addRow(label, box);
        }
    }
    createGroupLayout(group, 22, 7)->addLayout(form);
    return group;
}

QGroupBox *AppSettingsDialog::sourceGroup()
{
    auto *group = new QGroupBox(tr("Source / Destination Settings"));
    QVBoxLayout *layout = createGroupLayout(group, 25, 9);
    for (QCheckBox *box : {m_pchkFolderStructure, m_pchkCopyMetaTags, m_pchkCopyImages,
             m_pchkCopyTexts, m_pchkCopyEntireContent}) {
        layout->addWidget(box);
    }
    return group;
}

QGroupBox *AppSettingsDialog::afterConversionGroup()
{
    auto *group = new QGroupBox(tr("After Conversion"));
    QVBoxLayout *layout = createGroupLayout(group, 25, 9);
    layout->addWidget(m_pchkPlaySound);
    layout->addWidget(m_pchkOpenFolder);
    layout->addWidget(m_pchkClearList);
    return group;
}

void AppSettingsDialog::applyVariant()
{
    switch (currentVariant()) {
    case Variant::Wav:
        m_pgrpSettings->setTitle(tr("WAV Settings"));
        break;
    case Variant::M4a:
        m_pgrpSettings->setTitle(tr("M4A Settings"));
        break;
    case Variant::Mp3:
        m_pgrpSettings->setTitle(tr("MP3 Settings"));
        break;
    case Variant::Unknown:
        m_pgrpSettings->setTitle(tr("Unknown Settings"));
        break;
    }
    const QList<QWidget *> hidden = hiddenWidgets();
    for (QWidget *widget : hidden) {
        widget->hide();
    }
}

QList<QWidget *> AppSettingsDialog::hiddenWidgets() const
{
    QList<QWidget *> hidden {m_pchkClearList, m_pcbxFormat, m_pcbxDestination};
    if (currentVariant() == Variant::Wav) {
        hidden << m_plblQuality << m_pcbxQuality << m_plblBitRate << m_pcbxBitRate
               << m_pchkCopyMetaTags;
    } else {
        hidden << m_plblBitsPerSample << m_pcbxBitsPerSample << m_plblChannels << m_pcbxChannels;
    }
    return hidden;
}

QWidget *AppSettingsDialog::effectsTab()
{
    auto *page = new QWidget;
    m_pgrpNormalization = new QGroupBox(tr("Volume level normalization (in %)"));
    m_pgrpNormalization->setCheckable(true);
    m_pdialNormalization = new DecoratedDial(m_pgrpNormalization);
    m_pdialNormalization->setRange(1, 100);
    m_pdialNormalization->setMinimumSize(150, 104);
    m_pdialNormalization->setMaximumHeight(110);
    m_pdialNormalization->setAccessibleName(tr("Level in percent"));
    m_plcdNormalization = new QLCDNumber(3, m_pgrpNormalization);
    m_plcdNormalization->setSegmentStyle(QLCDNumber::Flat);
    m_plcdNormalization->setMinimumSize(120, 60);
    m_plcdNormalization->setMaximumHeight(90);
    connect(m_pdialNormalization, &QDial::valueChanged, m_plcdNormalization,
        QOverload<int>::of(&QLCDNumber::display));
    auto *normalization = new QHBoxLayout(m_pgrpNormalization);
    normalization->setContentsMargins(22, 22, 22, 22);
    normalization->addWidget(m_pdialNormalization);
    normalization->addWidget(m_plcdNormalization);

    //: The ampersand is doubled to be shown.
    m_pgrpFade = new QGroupBox(tr("Fade In && Out (in seconds)"));
    m_pgrpFade->setCheckable(true);
    m_pfadeIn = new FadeWidget(true, m_pgrpFade);
    m_pfadeOut = new FadeWidget(false, m_pgrpFade);
    auto *fade = new QHBoxLayout(m_pgrpFade);
    fade->setContentsMargins(25, 25, 25, 25);
    if (isRightToLeft()) {
        // Their pictures run from left to right in every language, as time does on players.
        fade->setDirection(QBoxLayout::RightToLeft);
    }
    for (FadeWidget *widget : {m_pfadeIn, m_pfadeOut}) {
        widget->setRange({0, LongestFadeSeconds});
        fade->addWidget(widget);
    }

    auto *trim = new QHBoxLayout;
    trim->addWidget(m_pchkTrimSilence);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_pgrpNormalization);
    layout->addWidget(m_pgrpFade);
    layout->addLayout(trim);
    return page;
}

void AppSettingsDialog::slotLoadSettings()
{
    selectValue(m_pcbxChannels, channels());
    selectValue(m_pcbxSampleRate, sampleRate());
    selectValue(m_pcbxBitsPerSample, bitsPerSample());
    m_pcbxFormat->setCurrentIndex(std::max(0, m_pcbxFormat->findData(codec(), Qt::UserRole)));
    selectValue(m_pcbxBitRate, bitRate());
    selectValue(m_pcbxQuality, quality());
    m_pgrpNormalization->setChecked(normalizationActive());
    m_pdialNormalization->setValue(normalization());
    m_plcdNormalization->display(m_pdialNormalization->value());
    m_pchkTrimSilence->setChecked(trimSilenceActive());
    m_pgrpFade->setChecked(fadeInOutActive());
    m_pfadeIn->setValue(static_cast<float>(fadeIn()));
    m_pfadeOut->setValue(static_cast<float>(fadeOut()));
    m_pchkPlaySound->setChecked(playSoundAfter());
    m_pchkOpenFolder->setChecked(openFolderAfter());
    m_pchkClearList->setChecked(clearListAfter());
    m_pchkCopyImages->setChecked(copyImagesActive());
    m_pchkCopyTexts->setChecked(copyTextsActive());
    m_pchkCopyEntireContent->setChecked(copyEntireContentActive());
    m_pchkFolderStructure->setChecked(folderStructureActive());
    m_pchkCopyMetaTags->setChecked(copyMetaTagsActive());
}

void AppSettingsDialog::slotSaveSettings()
{
    store(AppSettings::Channels, selectedValue(m_pcbxChannels));
    store(AppSettings::SampleRate, selectedValue(m_pcbxSampleRate));
    store(AppSettings::BitsPerSample, selectedValue(m_pcbxBitsPerSample));
    QMWidgets::App::setSettingsValue(
        QLatin1String(AppSettings::Codec), m_pcbxFormat->currentData(Qt::UserRole).toString());
    store(AppSettings::BitRate, selectedValue(m_pcbxBitRate));
    store(AppSettings::Quality, selectedValue(m_pcbxQuality));
    store(AppSettings::PlaySoundAfter, m_pchkPlaySound->isChecked());
    store(AppSettings::OpenFolderAfter, m_pchkOpenFolder->isChecked());
    store(AppSettings::ClearListAfter, m_pchkClearList->isChecked());
    store(AppSettings::Normalization, m_pdialNormalization->value());
    store(AppSettings::NormalizationActive, m_pgrpNormalization->isChecked());
    store(AppSettings::FadeInOutActive, m_pgrpFade->isChecked());
    store(AppSettings::FadeIn, m_pfadeIn->value());
    store(AppSettings::FadeOut, m_pfadeOut->value());
    store(AppSettings::TrimSilenceActive, m_pchkTrimSilence->isChecked());
    store(AppSettings::CopyImagesActive, m_pchkCopyImages->isChecked());
    store(AppSettings::CopyTextsActive, m_pchkCopyTexts->isChecked());
    store(AppSettings::CopyEntireContentActive, m_pchkCopyEntireContent->isChecked());
    store(AppSettings::FolderStructureActive, m_pchkFolderStructure->isChecked());
    store(AppSettings::CopyMetaTagsActive, m_pchkCopyMetaTags->isChecked());
    accept();
}

void AppSettingsDialog::slotGotoFilesLocation() { }

bool AppSettingsDialog::hasRates() const
{
    return currentVariant() == Variant::M4a && m_pcbxSampleRate->currentIndex() >= 0
        && m_pcbxBitRate->currentIndex() >= 0;
}

void AppSettingsDialog::slotSampleRateChanged()
{
    const int bitRate = selectedValue(m_pcbxBitRate);
    const int carried = AacRates::bitRateFor(selectedValue(m_pcbxSampleRate), bitRate);
    if (hasRates() && carried != bitRate) {
        selectValue(m_pcbxBitRate, carried);
    }
}

void AppSettingsDialog::slotBitRateChanged()
{
    const int sampleRate = selectedValue(m_pcbxSampleRate);
    const int carrying = AacRates::sampleRateFor(selectedValue(m_pcbxBitRate), sampleRate);
    if (hasRates() && carrying != sampleRate) {
        selectValue(m_pcbxSampleRate, carrying);
    }
}

void AppSettingsDialog::slotQualityChanged() { }

void AppSettingsDialog::showEvent(QShowEvent *event)
{
    if (event->spontaneous()) { // back from being minimised, with what the user has changed
        QDialog::showEvent(event);
        return;
    }
    slotLoadSettings();
    fitToScreen();
    QDialog::showEvent(event);
    // By then the window manager has told how large its frame is.
    QTimer::singleShot(250, this, [this] {
        const int top = screen()->availableGeometry().top();
        if (frameGeometry().top() < top) {
            move(x(), top);
        }
    });
}

void AppSettingsDialog::fitToScreen()
{
    // The style sheet sets sizes when a widget is polished, which for most is after their layouts:
    // those are told from the inside out.
    QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : qAsConst(widgets)) {
        widget->ensurePolished();
    }
    std::reverse(widgets.begin(), widgets.end());
    for (QWidget *widget : qAsConst(widgets)) {
        widget->updateGeometry();
        if (widget->layout() != nullptr) {
            widget->layout()->activate();
        }
    }
    // The window manager's frame takes some of the screen; what doesn't fit then is scrolled.
    constexpr int FramePixels = 48;
    const QSize available = screen()->availableSize() - QSize(16, FramePixels);
    resize(sizeHint().boundedTo(available));
}
