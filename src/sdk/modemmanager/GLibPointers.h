#ifndef TKSV_INTERNAL_GLIBPOINTERS_H
#define TKSV_INTERNAL_GLIBPOINTERS_H

#include <gio/gio.h>
#include <memory>
#include <string>

/* Smart pointers to GLib objects and memory. */

namespace Tksv
{

struct GObjectDeleter {
    void operator()(void *object) const { g_object_unref(object); }
};
struct GErrorDeleter {
    void operator()(GError *error) const { g_error_free(error); }
};
struct GFreeDeleter {
    void operator()(void *memory) const { g_free(memory); }
};
struct GVariantDeleter {
    void operator()(GVariant *variant) const { g_variant_unref(variant); }
};

template <typename T>
using GObjectPtr = std::unique_ptr<T, GObjectDeleter>;
using GErrorPtr = std::unique_ptr<GError, GErrorDeleter>;
using GVariantPtr = std::unique_ptr<GVariant, GVariantDeleter>;
template <typename T>
using GMemory = std::unique_ptr<T, GFreeDeleter>;

/// Returns a pointer with an additional reference to the object. Returns null if `object` is null.
template <typename T>
GObjectPtr<T> shareObject(T *object)
{
    return GObjectPtr<T>(object ? static_cast<T *>(g_object_ref(object)) : nullptr);
}

/// Returns the string, or an empty string if `text` is null.
inline std::string textOf(const char *text)
{
    return text ? text : "";
}

/** Owns the GError of a failed call. */
class ErrorSlot
{
public:
    ~ErrorSlot() { g_clear_error(&m_error); }
    ErrorSlot() = default;
    ErrorSlot(const ErrorSlot &) = delete;
    ErrorSlot &operator=(const ErrorSlot &) = delete;

    GError **slot() { return &m_error; }
    const GError *get() const { return m_error; }
    explicit operator bool() const { return m_error != nullptr; }

private:
    GError *m_error = nullptr;
};

} // namespace Tksv

#endif
