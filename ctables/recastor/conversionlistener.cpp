#include "ctables/recastor/conversionlistener.h"

namespace recastor {

ConversionListener& SilentListener() {
    static ConversionListener silent;
    return silent;
}

} // namespace recastor
