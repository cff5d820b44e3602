// What a check has to say of an object.
#pragma once

#include "client/capture_files.h"
#include "client/check/findings.h"
#include "recording/tree.h"

namespace l2fib
{

struct CheckedObject {
    std::string file;
    std::size_t line = 0;
    const char *kind = ""; ///< by the name of its command
    std::string name;      ///< "ac 0x00340003", also over several captures
    std::string unchecked; ///< why it could not be checked; empty when it was
    std::vector<Finding> findings;

    [[nodiscard]] std::string place() const { return file + ":" + std::to_string(line); }
    [[nodiscard]] bool disagrees() const;

    void hand_over(Parcel &parcel) const;
    void take_over(OpenedParcel &parcel);
};

/// The name of an object by what its view says: "ac 0x00340003 egress", "bridge 12 ingress". `xid` is that of its show
/// data as received.
std::string name_of(const Capture &capture, std::optional<std::uint32_t> xid, const recording::Tree &tree);

/// Why a view shows less than the object is; empty when it shows all of it.
std::string reason_not_to_check(const recording::Tree &tree, std::uint32_t status);

} // namespace l2fib
