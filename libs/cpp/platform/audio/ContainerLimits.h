#pragma once

struct AVFormatContext;
struct AVInputFormat;

/// What the bytes of a file may lead the demuxers to: to its own sound, and to nothing else.
namespace ContainerLimits {

/// Whether files of this kind hold what was recorded. Lists and descriptions that name other files
/// or addresses don't, nor do scripts and programs that make sound without an end.
bool allow(const AVInputFormat *format);

/// To be called before a container is opened: whatever its demuxer, and those inside of it, try to
/// open fails, no format that isn't allowed is taken, and one allocation has a limit.
void apply(AVFormatContext *container);

}
