#include <SysCarto/IKdxContents.h>

namespace SysCarto {

IKdxContents::~IKdxContents() = default;

}  // namespace SysCarto
