#pragma once

#include "TagReceipt.h"

#include <memory>
#include <QString>
#include <QtGlobal>

/// What became of one source of a run, for the report at its end.
struct RunReceipt
{
    QString source; ///< the path as it was given
    QString output; ///< the finished file; empty if there is none
    qint64 lengthMs = 0; ///< length of what was decoded
    bool isCut = false; ///< the source gave less when it was converted than when it was measured
    double gainDb = 0.0; ///< gain of the normalisation; 0 if it is off or the file is silent
    /// What became of the tags; null if none were to be carried over. Complete when no export is
    /// pending.
    std::shared_ptr<const QMMultiMedia::TagReceipt> tags;
};
