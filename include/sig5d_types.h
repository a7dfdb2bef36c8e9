/* Numlab.Sig5d: element types and calling conventions of the C interface. */
#ifndef SIG5D_TYPES_H
#define SIG5D_TYPES_H

#include <stdint.h>

/* On 32-bit Windows the ipp* functions remove their own arguments (stdcall); the library's own vector and matrix
   functions and every _Idx form leave that to the caller (cdecl). Elsewhere there is one convention. */
#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#define SIG5D_STDCALL __stdcall
#define SIG5D_CDECL __cdecl
#else
#define SIG5D_STDCALL
#define SIG5D_CDECL
#endif

typedef uint8_t Ipp8u;
typedef int8_t Ipp8s;
typedef uint16_t Ipp16u;
typedef int16_t Ipp16s;
typedef uint16_t Ipp16f; /* the bits of an IEEE 754 binary16 number */
typedef uint32_t Ipp32u;
typedef int32_t Ipp32s;
typedef float Ipp32f;
typedef uint64_t Ipp64u;
typedef int64_t Ipp64s;
typedef double Ipp64f;

typedef struct {
    Ipp16s re, im;
} Ipp16sc;
typedef struct {
    Ipp32s re, im;
} Ipp32sc;
typedef struct {
    Ipp32f re, im;
} Ipp32fc;
typedef struct {
    Ipp64s re, im;
} Ipp64sc;
typedef struct {
    Ipp64f re, im;
} Ipp64fc;

/* Of an image or a region of it, and of a filter's kernel: pixels in a row, rows. A place in one: pixels from the left,
   rows from the top. */
typedef struct {
    int width, height;
} IppiSize;
typedef struct {
    int x, y;
} IppiPoint;

/* 0 is success, a negative value an error (nothing was done), a positive value a warning (everything was done). */
typedef int32_t IppStatus;

typedef struct {
    int major, minor, majorBuild, build;
    char targetCpu[4]; /* the processor variant that answers: "px", "w7", "s8", "p8", "g9" or "h9" */
    const char* Name;
    const char* Version;
    const char* BuildDate;
} IppLibraryVersion;

#endif
