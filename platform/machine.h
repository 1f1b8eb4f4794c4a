#pragma once

// The facts of the machine, behind one interface so that a program or a test can replace them.
// The base class answers for the real machine.

#include <memory>
#include <optional>
#include <string>
#include <string_view>

constexpr const char* kPortableMark = "portable";

class Machine {
 public:
  virtual ~Machine();

  /// Whether the application runs as a portable installation: a file named kPortableMark lies
  /// beside the program.
  virtual bool Portable() const;

  /// The language file in use when the machine dictates one. The outer optional is empty when the
  /// configuration decides; the inner one is empty when there shall be no language manager.
  virtual std::optional<std::optional<std::wstring>> LanguageFile() const;

  /// Whether the function or operation of a sibling library with this name shall answer E_FAIL.
  virtual bool Fails(std::wstring_view operation) const;
};

/// The machine in use; the real one until SetMachine replaces it. Never null.
const Machine& GetMachine();

/// Replaces the machine in use; an empty pointer brings the real one back.
void SetMachine(std::shared_ptr<const Machine> machine);
