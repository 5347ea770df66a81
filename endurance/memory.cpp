#include "endurance/memory.h"

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
// g++ has it in its library and in no header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace orvane::soak {

std::size_t memoryInUse() {
#if defined(__SANITIZE_ADDRESS__)
  return __sanitizer_get_current_allocated_bytes();
#else
  return ::mallinfo2().uordblks;
#endif
}

}  // namespace orvane::soak
