#pragma once
// One object per thread, made on first use and deleted when its thread ends.
//
// Use it instead of a thread_local object with a destructor: with mingw-w64's
// emulated thread-local storage, a thread's thread_local storage is freed
// before the destructors of its thread_local objects run, so those run on
// freed memory (measured under Wine: a second thread's object already holds
// other data when its destructor runs). The damage that followed was a
// process that hung in its exit handlers and random faults later on. This
// keeps the object behind a pthread key, whose destructor owns it outright.

#include <pthread.h>

#include <memory>
#include <utility>

namespace vlog {

template <class T>
class PerThread {
 public:
  // `make` returns a new T (called once per thread, on its first use).
  explicit PerThread(T* (*make)()) : make_(make) {
    ok_ = ::pthread_key_create(&key_, [](void* object) { delete static_cast<T*>(object); }) == 0;
  }
  // The key stays for the life of the process (deleting it at exit would
  // wait on the threads library's key table).
  PerThread(const PerThread&) = delete;
  PerThread& operator=(const PerThread&) = delete;

  // Calls `use` with this thread's object; where no key could be made
  // (never seen), with an object of its own for this call.
  template <class F>
  auto with(F&& use) {
    void* object = ok_ ? ::pthread_getspecific(key_) : nullptr;
    if (object == nullptr) {
      object = make_();
      if (!ok_ || ::pthread_setspecific(key_, object) != 0) {
        const std::unique_ptr<T> once(static_cast<T*>(object));
        return use(*once);
      }
    }
    return use(*static_cast<T*>(object));
  }

 private:
  T* (*make_)();
  pthread_key_t key_{};
  bool ok_ = false;
};

}  // namespace vlog
