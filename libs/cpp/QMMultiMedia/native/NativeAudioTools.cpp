#include "NativeAudioTools.h"

#include "AVAsset.h"
#include <algorithm>
#include <limits>

namespace QMMultiMedia {

bool NativeAudioTools::isPlayable(const QUrl &url)
{
    return AVAsset::assetWithURL(url).isPlayable();
}

int NativeAudioTools::duration(const QUrl &url)
{
    const AVAsset asset = AVAsset::assetWithURL(url);
    constexpr double longest = std::numeric_limits<int>::max(); // a file may state anything
    return asset.isPlayable()
        ? static_cast<int>(std::min(CMTimeGetSeconds(asset.duration()), longest))
        : -1;
}

}
