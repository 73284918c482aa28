#include "GeneralOutput.h"

#include "AFTransCoder.h"
#include "AppSettingsDialog.h"
#include "EncoderBase.h"
#include "EncoderFactory.h"
#include "Encoders.h"
#include "FreeName.h"
#include "Literals.h"
#include "NativeMetaTags.h"
#include "PendingExports.h"
#include "Settings.h"
#include "WaveOutput.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

GeneralOutput::GeneralOutput(
    const QString &outputFile, QMMultiMedia::MAudioFormat format, QObject *parent)
    : QObject(parent)
    , m_outputFile(outputFile)
    , m_format(std::move(format))
    , m_finalFile(outputFile)
{
    QMMultiMedia::Settings settings(48000, 2, 1, 16);
    settings.setSampleRate(static_cast<unsigned int>(m_format.sampleRate));
    settings.setBitsPerSample(static_cast<short>(m_format.bitsPerSample));
    settings.setChannels(static_cast<short>(m_format.channels));
    m_pWaveOutput
        = std::make_unique<QMMultiMedia::WaveOutput>(QFile::encodeName(outputFile).constData(),
            settings, QString(), MTools::Handle<QMMultiMedia::EBUInfo>(), true);
    createEncoder();
}

GeneralOutput::~GeneralOutput() = default;

void GeneralOutput::createEncoder()
{
    QMMultiMedia::EncoderFactory *factory = QMMultiMedia::Encoders::factory();
    if (factory == nullptr) {
        return;
    }
    m_pEncoder.reset(factory->encoder(u"mp3"_qs));
    if (!m_pEncoder) {
        m_pEncoder.reset(factory->encoder(u"flac"_qs));
    }
    if (m_pEncoder) {
        // The file is the encoder's from here on: nothing else may write into it at the end.
        if (m_pWaveOutput->isOpen()) {
            m_pWaveOutput->close();
        }
        connect(m_pEncoder.get(), &QMMultiMedia::EncoderBase::errorsLog, this,
            &GeneralOutput::errorsLog);
        m_pEncoder->setFile(m_outputFile);
        m_pEncoder->setFormat(m_format);
        m_pEncoder->setCopyMetaTags(AppSettingsDialog::copyMetaTagsActive());
    }
}

void GeneralOutput::setMetaInfoFile(const QString &file)
{
    m_metaInfoFile = file;
    if (m_pEncoder) {
        m_pEncoder->setMetaInfoFile(file);
    }
}

qint64 GeneralOutput::write(float *values, qint64 count)
{
    if (m_pEncoder) {
        m_pEncoder->write(values, count);
        return 0;
    }
    return m_pWaveOutput->isOpen() ? m_pWaveOutput->write(values, static_cast<int>(count)) : 0;
}

void GeneralOutput::close()
{
    if (m_pEncoder) {
        m_pEncoder->close();
        return;
    }
    if (m_pWaveOutput->isOpen()) {
        m_pWaveOutput->close();
    }
    if (QCoreApplication::applicationName().toLower().contains(u"m4a"_qs)) {
        transcode();
    }
}

void GeneralOutput::transcode()
{
    const QFileInfo wave(m_outputFile);
    // A name that an export holds for a moment isn't taken.
    PendingExports::waitForOutput(wave.path() + u"/"_qs + wave.completeBaseName() + u".m4a"_qs);
    m_finalFile = freeName(wave.path() + u"/"_qs, wave.completeBaseName(), u".m4a"_qs);

    QMMultiMedia::AFTransCoder transcoder(nullptr);
    transcoder.setQuality(AppSettingsDialog::quality());
    transcoder.setBitrate(AppSettingsDialog::bitRate());
    transcoder.convert(m_outputFile, m_finalFile);

    if (!QFileInfo::exists(m_finalFile)) {
        emit errorsLog(tr("Settings error, can not create: ") + m_finalFile + tr("\n"));
        return;
    }
    QFile::remove(m_outputFile);
    if (AppSettingsDialog::copyMetaTagsActive() && !m_metaInfoFile.isEmpty()) {
        copyTags();
    }
}

void GeneralOutput::copyTags()
{
    QMMultiMedia::NativeMetaTags tags(nullptr);
    tags.readFrom(m_metaInfoFile);
    tags.writeTo(m_finalFile);
    m_tagReceipt = tags.receipt();
}
