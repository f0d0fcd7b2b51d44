// SPDX-License-Identifier: GPL-3.0-or-later
// What the thread sanitizer is to know of Qt, which is not built with it: that work handed to the thread pool, or to
// another thread by a queued call, begins after all that was done before it was handed over. The functions here are
// called in place of Qt's own of the same name, which they then call. Part of no other build.
#if defined(__SANITIZE_THREAD__)

#include <QMetaObject>
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <cstdarg>
#include <functional>
#include <utility>

// Memory that these libraries take, copy and give back is not looked at: what orders it are locks and counts inside
// of them. What our own code reads and writes is, also where they have called it.
extern "C" const char* __tsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "called_from_lib:libQt6Core.so\n"
           "called_from_lib:libQt6Gui.so\n"
           "called_from_lib:libQt6Widgets.so\n"
           "called_from_lib:libQt6Network.so\n"
           "called_from_lib:libQt6DBus.so\n"
           "called_from_lib:libglib-2.0.so\n"
           "called_from_lib:libharfbuzz.so\n"
           "called_from_lib:libicuuc.so\n"
           "called_from_lib:libicui18n.so\n"
           "race:tzset_internal\n"  // the C library's, behind its own lock
           "race_top:closedir\n";   // whether Qt closed the file that had this number before is not seen
}

namespace {

template <class Function>
Function* qtsOwn(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Calls `slot` in the thread it is meant for.
class HandedSlot : public QtPrivate::QSlotObjectBase {
  public:
    explicit HandedSlot(QSlotObjectBase* slot) : QSlotObjectBase(&impl), slot_(slot) { __tsan_release(this); }

  private:
    static void impl(int wanted, QSlotObjectBase* self, QObject* receiver, void** arguments, bool* /*same*/) {
        auto* const own = static_cast<HandedSlot*>(self);
        __tsan_acquire(own);
        if (wanted == Call) own->slot_->call(receiver, arguments);
        __tsan_release(own);
        if (wanted != Destroy) return;
        own->slot_->destroyIfLastRef();
        delete own;
    }

    QSlotObjectBase* const slot_;
};

}  // namespace

// A program that Qt starts has this one's memory until it is another; the sanitizer would take it for this program
// after a fork, and see no order in anything from then on.
extern "C" int __clone(int (*run)(void*), void* stack, int flags, void* argument, ...);
extern "C" int clone(int (*run)(void*), void* stack, int flags, void* argument, ...) noexcept {
    va_list more;
    va_start(more, argument);
    auto* const parent = va_arg(more, void*);
    auto* const locals = va_arg(more, void*);
    auto* const child = va_arg(more, void*);
    va_end(more);
    return __clone(run, stack, flags, argument, parent, locals, child);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type,
                                   void* result) {
    static auto* const invoke = qtsOwn<decltype(invokeMethodImpl)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    return invoke(object, new HandedSlot(slot), type, result);
}

void QThreadPool::start(std::function<void()> work, int priority) {
    static auto* const start =
        qtsOwn<void(QThreadPool*, std::function<void()>, int)>("_ZN11QThreadPool5startESt8functionIFvvEEi");
    auto* const handed = new std::function<void()>(std::move(work));
    __tsan_release(handed);
    const auto run = [handed] {
        __tsan_acquire(handed);
        (*handed)();
        delete handed;
    };
    start(this, run, priority);
}

#endif
