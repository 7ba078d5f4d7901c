/// Results of operations that can fail: 32 bits, below 0 for a failure. They are tested by sign.
#pragma once

#include <cstdint>

using HRESULT = std::int32_t; ///< A result, below 0 for a failure.

/// Success.
inline constexpr HRESULT S_OK = 0;
/// A success that found nothing.
inline constexpr HRESULT S_FALSE = 1;
/// General failure.
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
/// A required pointer, interface, document or node is missing.
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);
/// An argument does not meet what the operation asks of it.
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);
/// The operation is not offered.
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
/// The object does not have the interface asked for.
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);

/// True for a success, one that found nothing as well.
constexpr bool SUCCEEDED(HRESULT result) noexcept {
    return result >= 0;
}
/// True for a failure.
constexpr bool FAILED(HRESULT result) noexcept {
    return result < 0;
}
