#include "Fields.h"

namespace SysUtility {

Fields::~Fields() = default;

}  // namespace SysUtility
