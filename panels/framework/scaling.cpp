#include "scaling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace scaling {

double pow10(int decimals) {
    return std::pow(10.0, decimals);
}

qint32 to_wire(double value, double scale) {
    double product = value * scale;
    if (!std::isfinite(product)) {
        return 0;
    }
    const double nearest = std::round(product);
    if (std::abs(product - nearest) <= 1e-9 * std::max(1.0, std::abs(product))) {
        product = nearest;
    }
    // Keep the conversion to 64 bits defined, then keep the low 32 bits.
    constexpr double limit = 9.0e18;
    product = std::clamp(std::trunc(product), -limit, limit);
    return static_cast<qint32>(static_cast<quint32>(static_cast<qint64>(product)));
}

std::optional<int> percent(double value, double low, double high) {
    const double span = high - low;
    if (span == 0.0) {
        return std::nullopt;
    }
    const double share = std::trunc((value - low) / span * 100.0);
    if (!std::isfinite(share)) {
        return std::nullopt;
    }
    constexpr double limit = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(share, -limit, limit));
}

}  // namespace scaling
