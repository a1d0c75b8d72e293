#include <SysCarto/FrameProperties.h>

namespace SysCarto {

FramePart::FramePart() = default;
FramePart::FramePart(FramePart const&) = default;
FramePart& FramePart::operator=(FramePart const&) = default;
FramePart::~FramePart() = default;

IBorder::~IBorder() = default;
IBackground::~IBackground() = default;
IShadow::~IShadow() = default;
IFrameProperties::~IFrameProperties() = default;

}  // namespace SysCarto
