// Which PWs are shown, and their layer-3 paths.
#include "examples/show_data_builder.h"
#include "hw/pw.h"
#include "hw/storm_control.h"
#include "rp/names.h"
#include "tests/support/golden.h"
#include "tests/support/memory.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

class PwHandler : public testing::Test
{
protected:
    PwHandler()
    {
        set_converted(pw.service, service_vpls);
        set_converted(pw.state, state_bound);
        set_converted(pw.xid, 0x77);
        set(parts.np_count, 1);
    }

    /// The hardware's view of the PW, at level 1, with what follows its NP count.
    [[nodiscard]] Shown show(std::uint32_t direction, const ShowDataBuilder &hardware) const
    {
        std::vector<std::uint8_t> bytes = ShowDataBuilder{}.add(parts).bytes();
        bytes.insert(bytes.end(), hardware.bytes().begin(), hardware.bytes().end());
        return shown_hardware(1, L2FIB_OBJTYPE_MPLS, direction, bytes);
    }

    /// The ingress part of a VPLS PW with one NP.
    [[nodiscard]] ShowDataBuilder ingress() const
    {
        PwIngressBlock block{};
        block.paths = as_sent(paths);
        return ShowDataBuilder{}.add(XidEntry{}).add(block).add(StormControlProfile{});
    }

    PwHardwareShowData parts{};
    PwContext &pw = parts.rp.context.to_compose();
    Layer3Paths paths{};
};

TEST_F(PwHandler, Layer3Paths)
{
    using Flags = std::initializer_list<unsigned>;
    constexpr unsigned lag = PathDescriptor::lag;
    constexpr unsigned valid = PathDescriptor::ifhandle_valid;
    const struct {
        const char *title;
        Flags state;
        Flags primary;
        Flags backup;
    } cases[] = {
        {"unresolved", {PathState::unresolved, PathState::backup_valid}, {valid}, {valid}},
        {"no backup", {}, {lag}, {}},
        {"no ifhandles", {PathState::backup_valid}, {}, {lag}},
        {"both paths", {PathState::backup_valid}, {lag, valid}, {valid, 2, 3}},
    };
    Scenes scenes;
    for (const auto &c : cases) {
        paths = {};
        set(paths.primary.ifhandle, 0xa);
        set(paths.primary.sfp_or_lagid, 0xb);
        set(paths.backup.ifhandle, 0xc);
        set(paths.backup.sfp_or_lagid, 0xd);
        set_flags(paths.state.flags, c.state);
        set_flags(paths.primary.flags, c.primary);
        set_flags(paths.backup.flags, c.backup);
        scenes.add(c.title, show(1, ingress()));
    }
    scenes.add("egress", show(2, ingress()));
    expect_golden("pw-paths.txt", scenes.text());
}

TEST_F(PwHandler, Screens)
{
    Scenes scenes;
    set_flags(parts.rp.platform.to_compose().layer_flags, {PwPlatform::layer_invalid});
    for (const std::uint32_t np_count : {9, 0}) {
        set(parts.np_count, np_count);
        set_converted(pw.service, service_vpls);
        scenes.add("VPLS, NP count " + std::to_string(np_count), show(1, {}));
        set_converted(pw.service, service_mtun);
        scenes.add("point-to-point, NP count " + std::to_string(np_count), show(1, {}));
    }
    set(parts.np_count, 2);
    PwNpRecord first{};
    PwNpRecord second{};
    set(first.np, 5);
    set(second.np, 7);
    scenes.add("point-to-point, the NPs of its records", show(2, ShowDataBuilder{}.add(first).add(second)));
    set_converted(pw.service, service_local_switch);
    scenes.add("a service that no PW has", show(1, ingress()));
    set_converted(pw.state, state_unbound);
    scenes.add("not bound", show(1, ingress()));
    expect_golden("pw.txt", scenes.text());
}

TEST_F(PwHandler, MemoryRunsOut)
{
    const std::string whole = show(1, ingress()).text;
    for (const int allocation : {1, 2}) {
        const FailingAllocation failing(allocation);
        const Shown result = show(1, ingress());
        EXPECT_EQ(result.status, L2FIB_SHOW_ERR_NOMEM);
        EXPECT_EQ(result.text, whole.substr(0, whole.find("\n  slot mask")) +
                                   "\n  zel_l2fib_trident_print_internal_detail: print handler failed for objtype 3 : "
                                   "status 0xc6258200");
        EXPECT_EQ(failing.not_released(), 0);
    }
    const FailingAllocation none(3);
    EXPECT_EQ(show(1, ingress()), Shown{whole});
    EXPECT_EQ(none.not_released(), 0);
}

} // namespace l2fib
