#include <SysDisplay/Symbol.h>

namespace SysDisplay {

Symbol::Symbol() = default;
Symbol::Symbol(Symbol const&) = default;
Symbol& Symbol::operator=(Symbol const&) = default;
Symbol::~Symbol() = default;

}  // namespace SysDisplay
