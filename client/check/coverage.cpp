#include "client/check/coverage.h"

namespace l2fib
{

void Coverage::add(Finding finding, bool is_of_bits)
{
    std::vector<std::size_t> odd;
    for (const Statement &statement : finding.statements) {
        if (statement.is_odd && statement.bytes) {
            odd.push_back(statement.bytes->offset);
        }
    }
    const bool is_told = !is_of_bits && std::any_of(odd.begin(), odd.end(),
                                                    [this](std::size_t offset) { return offsets_.contains(offset); });
    if (!is_told) {
        offsets_.insert(odd.begin(), odd.end());
        findings_.push_back(std::move(finding));
    }
}

} // namespace l2fib
