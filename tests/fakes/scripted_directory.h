// A directory as a test would have it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/runtime_error.h"
#include "platform/directory_service.h"

namespace tessarine::fakes {

/// What is right below an object; after that many children, the error, where there are words for
/// one.
struct ScriptedContainer {
    std::vector<DirectoryChild> children;
    std::string error;
};

/// An object of which nobody has spoken is not there.
class ScriptedDirectory final : public DirectoryService {
  public:
    std::unique_ptr<DirectoryObject> bind(const std::string& path) override {
        paths.push_back(path);
        if (while_binding) while_binding();
        if (real != nullptr) return real->bind(path);
        const auto found = containers.find(path);
        if (found == containers.end())
            throw RuntimeError(ErrorNumber::Failed, "The directory has no " + path);
        return std::make_unique<Walk>(found->second);
    }

    /// Answers in place of the containers, where there is one.
    DirectoryService* real = nullptr;
    /// By path.
    std::map<std::string, ScriptedContainer> containers;
    std::function<void()> while_binding;
    std::vector<std::string> paths;  ///< that were asked for

  private:
    class Walk final : public DirectoryObject {
      public:
        explicit Walk(const ScriptedContainer& container) : container_(container) {}

        bool next(DirectoryChild& child) override {
            if (next_ < container_.children.size()) {
                child = container_.children[next_++];
                return true;
            }
            if (!container_.error.empty())
                throw RuntimeError(ErrorNumber::Failed, container_.error);
            return false;
        }

      private:
        const ScriptedContainer& container_;
        std::size_t next_ = 0;
    };
};

}  // namespace tessarine::fakes
