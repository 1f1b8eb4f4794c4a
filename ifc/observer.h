#pragma once

// Notifications from a publisher to its observers, on the user-interface thread.

#include <memory>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// What an observer hands over when it subscribes and gets back with every notification.
class IObserverParms {
 public:
  virtual ~IObserverParms() = default;
};

class IObserver {
 public:
  virtual ~IObserver() = default;
  /// An observer without identity of its own answers E_NOTIMPL.
  virtual HRESULT GetObserverId(std::uint32_t& id) = 0;
  virtual HRESULT Notify(std::uint32_t code, IObserverParms* parms) = 0;
};

class IPublisher {
 public:
  virtual ~IPublisher() = default;
  /// The observer must outlive the publisher; the publisher shares the parameters.
  virtual HRESULT Subscribe(IObserver* observer, std::shared_ptr<IObserverParms> parms) = 0;
};

}  // namespace INTERNAL_IFC
