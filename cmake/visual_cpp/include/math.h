// Wine's header, with the additions of Visual C++'s for C++: the functions for long double, which has the format of
// double, and the classification functions, which are macros in Wine's header.
#pragma once
#include_next <math.h>

#ifdef __cplusplus
#include <vcruntime.h>
#undef fpclassify
#undef signbit
#undef isinf
#undef isnan
#undef isnormal
#undef isfinite

typedef float float_t;
typedef double double_t;

extern "C" {
__declspec(dllimport) double __cdecl erfc(double);
__declspec(dllimport) float __cdecl erfcf(float);
__declspec(dllimport) double __cdecl fma(double, double, double);
__declspec(dllimport) float __cdecl fmaf(float, float, float);
__declspec(dllimport) double __cdecl nan(const char*);
__declspec(dllimport) float __cdecl nanf(const char*);
__declspec(dllimport) double __cdecl nexttoward(double, long double);
__declspec(dllimport) float __cdecl nexttowardf(float, long double);

// Defines the variants for long double of functions with one parameter and with two.
#define LONG_1(name) \
  inline long double name##l(long double x) { return name((double)x); }
#define LONG_2(name) \
  inline long double name##l(long double x, long double y) { return name((double)x, (double)y); }
LONG_1(acos);
LONG_1(acosh);
LONG_1(asin);
LONG_1(asinh);
LONG_1(atan);
LONG_1(atanh);
LONG_1(cbrt);
LONG_1(ceil);
LONG_1(cos);
LONG_1(cosh);
LONG_1(erf);
LONG_1(erfc);
LONG_1(exp);
LONG_1(exp2);
LONG_1(expm1);
LONG_1(fabs);
LONG_1(floor);
LONG_1(lgamma);
LONG_1(log);
LONG_1(log10);
LONG_1(log1p);
LONG_1(log2);
LONG_1(logb);
LONG_1(nearbyint);
LONG_1(rint);
LONG_1(round);
LONG_1(sin);
LONG_1(sinh);
LONG_1(sqrt);
LONG_1(tan);
LONG_1(tanh);
LONG_1(tgamma);
LONG_1(trunc);
LONG_2(atan2);
LONG_2(copysign);
LONG_2(fdim);
LONG_2(fmax);
LONG_2(fmin);
LONG_2(fmod);
LONG_2(hypot);
LONG_2(nextafter);
LONG_2(nexttoward);
LONG_2(pow);
LONG_2(remainder);
#undef LONG_1
#undef LONG_2
inline long double fmal(long double x, long double y, long double z) { return fma((double)x, (double)y, (double)z); }
inline long double frexpl(long double x, int* exponent) { return frexp((double)x, exponent); }
inline long double ldexpl(long double x, int exponent) { return ldexp((double)x, exponent); }
inline long double modfl(long double x, long double* whole) { return modf((double)x, (double*)whole); }
inline long double remquol(long double x, long double y, int* q) { return remquo((double)x, (double)y, q); }
inline long double scalblnl(long double x, long exponent) { return scalbln((double)x, exponent); }
inline long double scalbnl(long double x, int exponent) { return scalbn((double)x, exponent); }
inline long double nanl(const char* tag) { return nan(tag); }
inline int ilogbl(long double x) { return ilogb((double)x); }
inline long lrintl(long double x) { return lrint((double)x); }
inline long lroundl(long double x) { return lround((double)x); }
inline long long llrintl(long double x) { return llrint((double)x); }
inline long long llroundl(long double x) { return llround((double)x); }
}

template <class T>
inline int fpclassify(T x) noexcept {
  return __builtin_fpclassify(FP_NAN, FP_INFINITE, FP_NORMAL, FP_SUBNORMAL, FP_ZERO, x);
}
#define CLASSIFY_1(name)           \
  template <class T>               \
  inline bool name(T x) noexcept { \
    return __builtin_##name(x);    \
  }
#define CLASSIFY_2(name)                \
  template <class T, class U>           \
  inline bool name(T x, U y) noexcept { \
    return __builtin_##name(x, y);      \
  }
CLASSIFY_1(signbit);
CLASSIFY_1(isinf);
CLASSIFY_1(isnan);
CLASSIFY_1(isnormal);
CLASSIFY_1(isfinite);
CLASSIFY_2(isgreater);
CLASSIFY_2(isgreaterequal);
CLASSIFY_2(isless);
CLASSIFY_2(islessequal);
CLASSIFY_2(islessgreater);
CLASSIFY_2(isunordered);
#undef CLASSIFY_1
#undef CLASSIFY_2
#endif
