#pragma once

#include <QDialog>

class DecoratedDial;
class FadeWidget;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLCDNumber;
class QPushButton;

/// The dialog of the conversion settings, and the one owner of them: everything else reads them
/// through the static accessors.
///
/// An accessor returns what the settings store holds at that moment, or the default where the key
/// is missing or there is no application object (see AppSettings.h for both). Accessors may be
/// called from any thread. The store is written when Ok is pressed, and only then.
class AppSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param parent the window over which the dialog opens; may be null.
    explicit AppSettingsDialog(QWidget *parent);

    /// Target sample rate in Hz.
    static int sampleRate();
    /// Target bit rate of the encoder in bit/s.
    static int bitRate();
    /// Encoder quality, 0 to 127.
    static int quality();
    /// Target channel count.
    static int channels();
    /// Target sample width in bits.
    static int bitsPerSample();
    /// Target peak level in percent of full scale.
    static int normalization();
    static bool normalizationActive();
    /// Fade lengths in seconds, the stored fraction cut off.
    static int fadeIn();
    static int fadeOut();
    static bool fadeInOutActive();
    static bool trimSilenceActive();
    static bool folderStructureActive();
    static bool copyImagesActive();
    static bool copyTextsActive();
    static bool copyEntireContentActive();
    static bool copyMetaTagsActive();
    static bool playSoundAfter();
    static bool openFolderAfter();
    static bool clearListAfter();

    /// The name of codec 0: always "WAV".
    static QString codec();
    /// "WAV", "AIFF", "MPEG4ACC", "CAF", "FLAC" for 0 to 4; any other index gives an empty string.
    static QString codecName(int index);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void slotSaveSettings();
    void slotLoadSettings();
    void slotGotoFilesLocation();
    void slotSampleRateChanged();
    void slotBitRateChanged();
    void slotQualityChanged();

private:
    Q_DISABLE_COPY(AppSettingsDialog)

    QWidget *generalTab();
    QWidget *effectsTab();

    bool hasRates() const; ///< whether a sample rate and a bit rate are chosen that must fit
    void createWidgets();
    void createLayout();
    void connectSignals();
    void createFormatBoxes();
    void createCheckBoxes();
    QGroupBox *formatGroup();
    QGroupBox *sourceGroup();
    QGroupBox *afterConversionGroup();
    void applyVariant();
    QList<QWidget *> hiddenWidgets() const;
    void fitToScreen();

    QPushButton *m_pcmdOk = nullptr;
    QPushButton *m_pcmdCancel = nullptr;
    QComboBox *m_pcbxChannels = nullptr;
    QComboBox *m_pcbxBitsPerSample = nullptr;
    QComboBox *m_pcbxSampleRate = nullptr;
    QComboBox *m_pcbxFormat = nullptr;
    QComboBox *m_pcbxDestination = nullptr;
    QComboBox *m_pcbxBitRate = nullptr;
    QComboBox *m_pcbxQuality = nullptr;
    QLabel *m_plblBitRate = nullptr;
    QLabel *m_plblBitsPerSample = nullptr;
    QLabel *m_plblChannels = nullptr;
    QLabel *m_plblQuality = nullptr;
    QGroupBox *m_pgrpSettings = nullptr;
    QGroupBox *m_pgrpSourceDestination = nullptr;
    QCheckBox *m_pchkCopyMetaTags = nullptr;
    QCheckBox *m_pchkCopyImages = nullptr;
    QCheckBox *m_pchkCopyTexts = nullptr;
    QCheckBox *m_pchkCopyEntireContent = nullptr;
    QCheckBox *m_pchkFolderStructure = nullptr;
    QGroupBox *m_pgrpNormalization = nullptr;
    DecoratedDial *m_pdialNormalization = nullptr;
    QLCDNumber *m_plcdNormalization = nullptr;
    FadeWidget *m_pfadeIn = nullptr;
    FadeWidget *m_pfadeOut = nullptr;
    QGroupBox *m_pgrpFade = nullptr;
    QCheckBox *m_pchkTrimSilence = nullptr;
    QGroupBox *m_pgrpAfterConversion = nullptr;
    QCheckBox *m_pchkPlaySound = nullptr;
    QCheckBox *m_pchkOpenFolder = nullptr;
    QCheckBox *m_pchkClearList = nullptr;
};
