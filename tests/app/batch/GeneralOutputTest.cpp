#include "GeneralOutput.h"

#include "EncoderBase.h"
#include "EncoderFactory.h"
#include "Encoders.h"
#include "Literals.h"
#include "MediaMaker.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// Writes its own bytes and complains.
class PluggedEncoder : public QMMultiMedia::EncoderBase
{
public:
    void write(float * /*samples*/, long long count) override { m_samples += count; }

    void close() override
    {
        MediaMaker::writeFile(m_strFile, QByteArray(static_cast<int>(m_samples), 'M'));
        emit errorsLog(u"a complaint\n"_qs);
    }

private:
    long long m_samples = 0;
};

class PluggedFactory : public QMMultiMedia::EncoderFactory
{
public:
    PluggedFactory() { QMMultiMedia::Encoders::setFactory(this); }
    ~PluggedFactory() override { QMMultiMedia::Encoders::setFactory(nullptr); }
    QMMultiMedia::EncoderBase *encoder(const QString & /*name*/) override
    {
        return new PluggedEncoder;
    }
};

}

TEST(GeneralOutput, LeavesTheFileToAnEncoderThatIsPluggedIn)
{
    const PluggedFactory factory;
    const QTemporaryDir dir;
    const QString file = dir.filePath(u"a.mp3"_qs);
    float samples[2000] = {};
    {
        GeneralOutput output(file, QMMultiMedia::MAudioFormat());
        QSignalSpy errors(&output, &GeneralOutput::errorsLog);
        output.write(samples, 2000);
        output.close();
        ASSERT_EQ(errors.size(), 1);
        EXPECT_EQ(errors[0][0].toString(), u"a complaint\n"_qs);
    }
    EXPECT_EQ(MediaMaker::bytesOf(file), QByteArray(2000, 'M'));
}
