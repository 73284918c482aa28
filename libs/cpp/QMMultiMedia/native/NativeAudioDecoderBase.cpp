#include "NativeAudioDecoderBase.h"

namespace QMMultiMedia {

NativeAudioDecoderBase::NativeAudioDecoderBase(QObject *parent)
    : QObject(parent)
{
}

NativeAudioDecoderBase::~NativeAudioDecoderBase() = default;

}
