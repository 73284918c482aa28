#include "NativeAudioTools.h"

#include "AVAsset.h"

namespace QMMultiMedia {

bool NativeAudioTools::isPlayable(const QUrl &url)
{
    return AVAsset::assetWithURL(url).isPlayable();
}

int NativeAudioTools::duration(const QUrl &url)
{
    const AVAsset asset = AVAsset::assetWithURL(url);
    return asset.isPlayable() ? static_cast<int>(CMTimeGetSeconds(asset.duration())) : -1;
}

}
