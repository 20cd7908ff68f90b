#pragma once

#include <functional>
#include <vector>

#include "platform/windows/com/class_factory.h"
#include "platform/windows/com/registration.h"

namespace windows {

/// A class that a server serves: how it is registered and how its objects are made.
struct ServedClass {
  ServerClass entry;
  ClassFactory::Maker make;
};

/// What a server is made of. Every server DLL defines this one function; the entry points call it.
struct Server {
  std::vector<ServedClass> classes;
  bool hasTypeLibrary = false;
};
const Server& ThisServer();

/// Called as the DLL leaves the process.
void ServerUnloading();

}  // namespace windows
