/*
 * What the library asks of the router that it runs in.
 *
 * The library calls these functions and defines none of them. A router's environment brings its own
 * libzel_l2fib_platform.so; an executable that defines some of them itself is asked first, as with any shared library.
 */
#ifndef ZEL_L2FIB_PLATFORM_H
#define ZEL_L2FIB_PLATFORM_H

#include <stdint.h>

#if defined(__GNUC__)
#define ZEL_L2FIB_PLATFORM_EXPORT __attribute__((visibility("default")))
#else
#define ZEL_L2FIB_PLATFORM_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The card-type code of the card of a node. */
ZEL_L2FIB_PLATFORM_EXPORT uint32_t node_card_type(uint32_t node_id);

/* The monotonic clock that the time stamps of the show data were taken from. */
ZEL_L2FIB_PLATFORM_EXPORT void monotonic_now(uint64_t *seconds, uint64_t *nanoseconds);

/* The text of a status. Never null; valid until the next call. */
ZEL_L2FIB_PLATFORM_EXPORT const char *status_text(uint32_t status);

/* Whether an interface handle denotes a virtual interface. Returns 0 when *is_virtual (0 or 1) holds the answer, else a
 * status. */
ZEL_L2FIB_PLATFORM_EXPORT uint32_t ifhandle_is_virtual(uint32_t ifhandle, uint32_t *is_virtual);

#ifdef __cplusplus
}
#endif

#endif
