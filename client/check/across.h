// What the objects of files say of each other.
#pragma once

#include "client/capture_files.h"
#include "client/check/checked_view.h"
#include "client/check/findings.h"

#include <set>
#include <tuple>
#include <utility>

namespace l2fib
{

/// Remembers of each object what others refer to: 24 to 40 bytes for one, and 24 for each member of a bridge.
class AcrossObjects
{
public:
    void add(const Capture &capture, std::optional<std::uint32_t> xid, const CheckedView &view,
             const CapturePlace &place);

    /// What was added since the last time, for the process that has all of it.
    void hand_over(Parcel &parcel);
    void take_over(OpenedParcel &parcel);

    /// What does not go together.
    [[nodiscard]] std::vector<Finding> findings();

    /// The rules, for people.
    static std::span<const char *const> rules();

private:
    struct Source {
        std::uint32_t file;
        std::uint32_t line;
    };
    struct Port { ///< an AC or a PW
        std::uint32_t node, xid, bridge;
        bool is_vpls, is_bound, is_ac;
        Source source;
    };
    struct Bridge {
        std::uint32_t node, id;
        bool is_bound;
        Source source;
    };
    struct Reference { ///< of a bridge or a MAC address to a cross-connect
        std::uint32_t node, bridge, xid;
        bool is_member;
        Source source;

        [[nodiscard]] auto key() const { return std::tuple(node, xid, bridge, is_member); }
        bool operator<(const Reference &other) const { return key() < other.key(); }
        bool operator==(const Reference &other) const { return key() == other.key(); }
    };

    void add_port(const Capture &capture, std::uint32_t xid, const CheckedView &view, Source source);
    void add_bridge(const Capture &capture, const CheckedView &view, Source source);
    void add_mac(const Capture &capture, const CheckedView &view, Source source);
    void remember(const Reference &reference);
    [[nodiscard]] const Port *port(std::uint32_t node, std::uint32_t xid) const;
    void check_reference(const Reference &reference, std::vector<Finding> &findings) const;
    void check_bridge_of(const Port &port, std::vector<Finding> &findings) const;
    std::uint32_t number_of(const std::string &file);
    [[nodiscard]] std::string text_of(const Source &source) const;

    std::vector<std::string> files_;
    std::vector<Port> ports_;
    std::vector<Bridge> bridges_;
    std::vector<Reference> references_;
    std::size_t sorted_ = 0;                                 ///< references that are there once
    std::set<std::pair<std::uint32_t, std::uint32_t>> bvis_; ///< node and cross-connect ID
    std::set<std::uint32_t> nodes_with_ports_;
};

} // namespace l2fib
