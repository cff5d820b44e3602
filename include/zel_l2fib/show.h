/*
 * zel_l2fib: the layer-2 forwarding state of a router, as text for its show commands.
 *
 * Conventions, for every function unless its comment says otherwise:
 *
 *  1. All text goes to standard output through stdio, in order with what the caller prints there.
 *  2. Show data is the big-endian byte image of one object: the route processor's (RP) context, then what
 *     each network processor (NP) of the line card holds. Offsets and sizes are in bytes.
 *  3. The caller owns the show data. A view converts parts of it to host order in place, so the buffer must be
 *     writable and can be shown once; nothing refers to it after the call has returned.
 *  4. Nothing outside [show data, show data + size) is read or written. Show data that ends early is reported on
 *     the screen and by L2FIB_SHOW_ERR_DATA. The functions that trust their caller instead say so.
 *  5. Results are statuses: 0 or an L2FIB_SHOW_ERR_ value. A node whose card is not supported, an object type that
 *     a view does not know and an empty slot of the print table are no failures: a line may be printed and the
 *     status is 0.
 *  6. Memory that a view needs for its work is released before it returns. No locks are taken: call from one
 *     thread at a time, and not from a signal handler.
 *  7. A call prints at most 12 characters for each byte of show data and 4 MiB more, whatever the show data holds.
 *     Where a function takes an indent level, its blanks come on top.
 *  8. What the library calls, the slots of zel_l2fib_hal_print and the platform operations, has to return to it: an
 *     exception or a longjmp past the library loses text and memory of the call. A slot may print and may call the
 *     library; a platform operation may do neither.
 */
#ifndef ZEL_L2FIB_SHOW_H
#define ZEL_L2FIB_SHOW_H

#include <stdint.h>

#define ZEL_L2FIB_VERSION_MAJOR 1
#define ZEL_L2FIB_VERSION_MINOR 0

#if defined(__GNUC__)
#define ZEL_L2FIB_EXPORT __attribute__((visibility("default")))
#else
#define ZEL_L2FIB_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Statuses. */
#define L2FIB_SHOW_ERR_DATA  UINT32_C(0x46258800) /* show data malformed, too short, or with an unexpected value */
#define L2FIB_SHOW_ERR_ARGS  UINT32_C(0x46258e00) /* a required pointer is null; a summary's size is unacceptable */
#define L2FIB_SHOW_ERR_NOMEM UINT32_C(0xc6258200) /* a working buffer could not be allocated */

/* Directions. Any other value counts as egress, except in the hardware part of an AC whose service is not VPLS, which
 * takes these two only. */
#define L2FIB_INGRESS UINT32_C(1)
#define L2FIB_EGRESS  UINT32_C(2)

/* View flags. The highest one that is set selects the view; none selects the detail view. */
#define L2FIB_VIEW_DETAIL       UINT32_C(1)
#define L2FIB_VIEW_PRIVATE      UINT32_C(2)
#define L2FIB_VIEW_INCONSISTENT UINT32_C(4)

/* Object types. */
enum zel_l2fib_objtype {
    L2FIB_OBJTYPE_NONE = 0,
    L2FIB_OBJTYPE_ALL = 1,
    L2FIB_OBJTYPE_AC = 2,   /* attachment circuit */
    L2FIB_OBJTYPE_MPLS = 3, /* pseudowire */
    L2FIB_OBJTYPE_PBB_PORT = 4,
    L2FIB_OBJTYPE_VNI = 5,
    L2FIB_OBJTYPE_NHOP = 6,     /* next hop */
    L2FIB_OBJTYPE_RSRC_MON = 7, /* use of the hardware tables */
    L2FIB_OBJTYPE_L2TP = 8,
    L2FIB_OBJTYPE_L2TP_SESSION = 9,
    L2FIB_OBJTYPE_VFI = 10,
    L2FIB_OBJTYPE_BRIDGE = 11,
    L2FIB_OBJTYPE_BRIDGE_SHG = 12,
    L2FIB_OBJTYPE_BRIDGE_PORT = 13,
    L2FIB_OBJTYPE_BRIDGE_MAC = 14,
    L2FIB_OBJTYPE_MSTI_MAIN_PORT = 15,
    L2FIB_OBJTYPE_BRIDGE_MAIN_PORT = 16,
    L2FIB_OBJTYPE_MCAST_TABLE = 17,
    L2FIB_OBJTYPE_MCAST_LEAF = 18,
    L2FIB_OBJTYPE_MCAST_XID = 19,
    L2FIB_OBJTYPE_PBB_BMAC_SA = 20,
    L2FIB_OBJTYPE_DHCP = 21,
    L2FIB_OBJTYPE_MCAST_XID_LIST = 22,
    L2FIB_OBJTYPE_SPAN = 23,
    L2FIB_OBJTYPE_G8032_RING = 24,
    L2FIB_OBJTYPE_G8032_RING_INST = 25,
    L2FIB_OBJTYPE_GLOBAL = 26,
    L2FIB_OBJTYPE_EVPN_MCAST_LEAF = 27,
    L2FIB_OBJTYPE_EVPN_MCAST_OLE = 28,
    L2FIB_OBJTYPE_PWHE_MP = 29,
    L2FIB_OBJTYPE_P2MP_PTREE = 30,
    L2FIB_OBJTYPE_P2MP_PTREE_LABEL = 31,
    L2FIB_OBJTYPE_PWGROUP = 32,
    L2FIB_OBJTYPE_EVPN = 33,
    L2FIB_OBJTYPE_EVPN_SHG = 34,
    L2FIB_OBJTYPE_EVPN_IPV4_MAC = 35,
    L2FIB_OBJTYPE_EVPN_IPV6_MAC = 36,
    L2FIB_OBJTYPE_COLLABORATOR = 37,
    L2FIB_OBJTYPE_L2RIB_CACHE = 38,
    L2FIB_OBJTYPE_MAX = 39
};

/* ---- Objects ---------------------------------------------------------------------------------------------------
 *
 * Show data of the detail and private views: for an AC and a BRIDGE, the NP count (16 bits) and the RP context at
 * offset 2; for every other object type, the RP context at offset 0. The hardware part follows. The inconsistency
 * view takes a stream of type-length-value records instead: the RP's report, then the hardware's.
 *
 *   objtype     a value of enum zel_l2fib_objtype
 *   node_id     the node of the object; decides the card type
 *   direction   L2FIB_INGRESS or L2FIB_EGRESS
 *   view_flags  L2FIB_VIEW_ values
 *   show_data   the object, writable; see the conventions
 *   size        bytes at show_data
 */

/* Shows an object: refills zel_l2fib_hal_print and calls the view that view_flags select. Statuses: the view's;
 * L2FIB_SHOW_ERR_DATA when the show data ends inside the RP context. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_print_internal(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                                   uint32_t view_flags, uint8_t *show_data, uint64_t size);

/* The detail view of the RP context, then the hardware's through zel_l2fib_hal_print. The caller promises the whole
 * RP context: it is not compared with size. Statuses: 0, L2FIB_SHOW_ERR_ARGS for null show data, the hardware's. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_print_internal_detail(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                                          uint32_t view_flags, uint8_t *show_data, uint64_t size);

/* The private view: every field of the RP context by name, then the hardware's. The same promise and statuses as the
 * detail view. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_print_internal_private(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                                           uint32_t view_flags, uint8_t *show_data, uint64_t size);

/* The inconsistency report of an AC. Statuses: 0, L2FIB_SHOW_ERR_DATA for a malformed record, L2FIB_SHOW_ERR_ARGS for
 * null show data with a size. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_print_internal_inconsistent(uint32_t objtype, uint32_t node_id, uint32_t direction,
                                                                uint32_t view_flags, uint8_t *show_data, uint64_t size);

/* ---- Platform summaries ----------------------------------------------------------------------------------------
 *
 * show_data is not changed. hw_arg is handed to the hardware's part unchanged. Size 0 prints nothing.
 */

/* Counts of created, bound and unbound objects of each kind: 540 bytes of counters and at least one byte after them.
 * Statuses: 0, L2FIB_SHOW_ERR_ARGS. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_platform_summary_hw_print_internal(uint32_t node_id, uint32_t hw_arg,
                                                                       uint8_t *show_data, uint64_t size);

/* Counts of events of each kind of object (1512 bytes) and the nanoseconds that they took (3024 bytes).
 * Statuses: 0, L2FIB_SHOW_ERR_ARGS. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_platform_msg_counter_hw_print_internal(uint32_t node_id, uint32_t hw_arg,
                                                                           uint8_t *show_data, uint64_t size);

/* The row of zel_l2fib_hal_print for a node: 1 when its card is of the supported family, else 0. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_get_cardtype(uint32_t node_id);

/* ---- Formatting ------------------------------------------------------------------------------------------------
 *
 * Null pointers are the caller's fault and not checked, except by zel_l2fib_print_tlv. The print_ functions return
 * the number of characters printed.
 */

/* Prints type-length-value records up to the end of the stream, indented by 2 x level blanks, and advances *cursor and
 * *remaining (bytes) to where it stopped. Statuses: 0, L2FIB_SHOW_ERR_DATA with the cursor at the offending record,
 * L2FIB_SHOW_ERR_ARGS for a null cursor, remaining or *cursor with bytes remaining. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_print_tlv(uint32_t level, uint8_t **cursor, uint64_t *remaining);

/* Writes an elapsed time in nanoseconds, in words such as "3 m 20 s ", into text of capacity bytes, which is cleared
 * first. Returns what snprintf returns. */
ZEL_L2FIB_EXPORT int zel_l2fib_print_elapsed(uint64_t ns, char *text, uint32_t capacity);

/* Writes the name of a split-horizon group, or its number, into text of capacity bytes; 12 hold every value. Returns
 * what snprintf returns. */
ZEL_L2FIB_EXPORT int zel_l2fib_get_shg_str(char *text, int capacity, int value);

/* Prints a MAC address of 6 bytes in wire order as 0011.2233.4455. */
ZEL_L2FIB_EXPORT int print_mac(const uint8_t *mac);

/* Prints an IPv4 address, held as a number in host order, as 10.0.0.1. */
ZEL_L2FIB_EXPORT int print_ip(const uint32_t *address);

/* Prints big-endian 32-bit words as [0x00000001 00000002]. length is in bytes and is rounded up to whole words, all of
 * which are read; a negative length counts as 0. */
ZEL_L2FIB_EXPORT int print_words(const void *words, int length);

/* ---- Records ---------------------------------------------------------------------------------------------------*/

/* Converts an RP context to host order in place: AC, MPLS, BRIDGE, BRIDGE_PORT and BRIDGE_MAC; other object types are
 * left alone. context is the start of the RP context, not of the show data. The caller promises the whole record, and
 * that it is converted once. */
ZEL_L2FIB_EXPORT void zel_l2fib_rp_obj_endian_xform_ctx(uint32_t objtype, uint8_t *context);

/* Whether the hardware part of a bridge carries feature block 1 or 2, by its converted RP context (the caller promises
 * the whole record). Only the low 8 bits of block count. 0 for a null context and for any other block. */
ZEL_L2FIB_EXPORT uint8_t zel_l2fib_rp_brg_feat_block_control_flags_en(const uint8_t *context, uint32_t block);

/* Bytes of the RP and platform context of an object type whose show data carries np_count NPs: the hardware part begins
 * after them. 0 for object types without a fixed context. */
ZEL_L2FIB_EXPORT uint64_t zel_l2fib_data_size(uint32_t objtype, uint8_t np_count);

/* Bytes of bridge feature block 1 or 2 for a number of NPs; 0 for any other block. */
ZEL_L2FIB_EXPORT uint64_t zel_l2fib_hal_brg_feature_data_size(uint8_t block, uint8_t np_count);

/* ---- Hardware views --------------------------------------------------------------------------------------------
 *
 * These take the whole show data of an object whose RP context is already in host order; every size is checked. level
 * is the indent level: 2 blanks each.
 */

/* The hardware part of an object, by the view that view_flags select; none selects nothing. Nothing is printed without
 * show data. Statuses: those of the view. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_trident_print_internal(uint32_t level, uint32_t objtype, uint32_t node_id,
                                                           uint32_t direction, uint32_t view_flags, uint8_t *show_data,
                                                           uint64_t size);

/* The views that are called by zel_l2fib_trident_print_internal; card_type is the row of zel_l2fib_hal_print. Statuses: 0,
 * L2FIB_SHOW_ERR_DATA, L2FIB_SHOW_ERR_ARGS for null show data, L2FIB_SHOW_ERR_NOMEM. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_trident_print_internal_detail(uint32_t level, uint32_t objtype, uint32_t card_type,
                                                                  uint32_t direction, uint32_t view_flags,
                                                                  uint8_t *show_data, uint64_t size);
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_trident_print_internal_private(uint32_t level, uint32_t objtype, uint32_t card_type,
                                                                   uint32_t direction, uint32_t view_flags,
                                                                   uint8_t *show_data, uint64_t size);
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_trident_print_internal_inconsistent(uint32_t level, uint32_t objtype,
                                                                        uint32_t card_type, uint32_t direction,
                                                                        uint32_t view_flags, uint8_t *show_data,
                                                                        uint64_t size);

/* The state that the hardware abstraction layer keeps in shared memory. hw_arg is not used; show_data is not changed.
 * Returns 0. */
ZEL_L2FIB_EXPORT uint32_t zel_l2fib_trident_print_summary(uint32_t hw_arg, uint8_t *show_data, uint64_t size);

/* ---- Objects of the library ------------------------------------------------------------------------------------*/

/* How the RP's views reach the hardware's: one row for each result of zel_l2fib_get_cardtype. An empty slot is null and
 * its part is not printed. zel_l2fib_print_internal and the platform summaries clear and refill the table at each call;
 * until the first of these calls it is empty. */
struct zel_l2fib_hal_print_row {
    uint32_t (*object_print)(uint32_t level, uint32_t objtype, uint32_t node_id, uint32_t direction,
                             uint32_t view_flags, uint8_t *show_data, uint64_t size);
    uint32_t (*summary_print)(uint32_t hw_arg, uint8_t *show_data, uint64_t size);
    uint32_t (*statistics_print)(uint32_t hw_arg, uint8_t *show_data, uint64_t size);
};
ZEL_L2FIB_EXPORT extern struct zel_l2fib_hal_print_row zel_l2fib_hal_print[2];

/* For the platform layer, which shares them through this library; zero, and neither read nor written here. */
ZEL_L2FIB_EXPORT extern uint32_t l2fib_mac_entry_type;
ZEL_L2FIB_EXPORT extern uint8_t ipmc_bvi_stat[256];

#ifdef __cplusplus
}
#endif

#endif
