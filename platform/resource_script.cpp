#include "platform/resource_script.h"

#include <map>
#include <utility>

#include "platform/resource_reader.h"

namespace {

// Numbers of the standard resource types.
constexpr WORD kMenuType = 4;
constexpr WORD kDialogType = 5;
constexpr WORD kStringType = 6;

constexpr UINT kStringsPerBlock = 16;
constexpr DWORD kEmptyHeaderSize = 32;
/// Version, memory flags, language, user version and characteristics; they tell nothing here.
constexpr std::size_t kHeaderTail = 16;

/// A type's key in the directory: its name in capitals, or its number behind a mark.
using TypeKey = std::wstring;

TypeKey KeyOf(const std::wstring& name) {
  TypeKey key = name;
  for (wchar_t& c : key) {
    if (c >= L'a' && c <= L'z') c = c - L'a' + L'A';
  }
  return key;
}

TypeKey KeyOf(WORD number) { return L"\x01" + std::to_wstring(number); }

TypeKey KeyOf(const ResourceName& name) {
  return name.isNumber ? KeyOf(name.number) : KeyOf(name.text);
}

struct Entry {
  std::size_t offset = 0;
  std::span<const std::byte> bytes;
};

using Directory = std::map<std::pair<TypeKey, UINT>, Entry>;

/// The empty resource that tells a 32-bit script from others.
void ReadSignature(ResourceReader& reader) {
  const ResourceReader start = reader;
  const DWORD dataSize = reader.Dword("the first header");
  const DWORD headerSize = reader.Dword("the first header");
  const ResourceName type = reader.Name("the first header");
  const ResourceName name = reader.Name("the first header");
  const bool isEmpty = dataSize == 0 && headerSize == kEmptyHeaderSize && type.isNumber &&
                       type.number == 0 && name.isNumber && name.number == 0;
  if (!isEmpty) start.Refuse("the script does not start with the empty resource");
  reader.Bytes(kHeaderTail, "the first header");
}

void ReadEntry(ResourceReader& reader, Directory& directory) {
  const ResourceReader start = reader;
  const DWORD dataSize = reader.Dword("the data size of a resource");
  const DWORD headerSize = reader.Dword("the header size of a resource");
  const ResourceName type = reader.Name("the type of a resource");
  const ResourceName name = reader.Name("the name of a resource");
  reader.Align();
  reader.Bytes(kHeaderTail, "the header of a resource");
  if (reader.Offset() - start.Offset() != headerSize) {
    start.Refuse("the header of a resource says that it has " + std::to_string(headerSize) +
                 " bytes");
  }
  const std::size_t offset = reader.Offset();
  const auto bytes = reader.Bytes(dataSize, "the data of a resource");
  reader.Align();
  if (name.isNumber) directory.emplace(std::pair(KeyOf(type), name.number), Entry{offset, bytes});
}

}  // namespace

struct ResourceScript::Implementation {
  Directory directory;

  const Entry* Find(const TypeKey& type, UINT id) const {
    const auto found = directory.find({type, id});
    return found != directory.end() ? &found->second : nullptr;
  }

  /// Calls `read` with a reader of the resource; empty when there is none or it is damaged.
  template <class Read>
  auto Load(WORD type, UINT id, ResourceError& error, Read read) const
      -> std::optional<decltype(read(std::declval<ResourceReader>()))> {
    const Entry* entry = Find(KeyOf(type), id);
    if (entry == nullptr) return std::nullopt;
    try {
      return read(ResourceReader(entry->bytes, entry->offset));
    } catch (const ResourceError& damage) {
      error = damage;
      return std::nullopt;
    }
  }
};

ResourceScript::ResourceScript() : implementation_(std::make_unique<Implementation>()) {}

ResourceScript::~ResourceScript() = default;

std::unique_ptr<ResourceScript> ResourceScript::Parse(std::span<const std::byte> bytes,
                                                      ResourceError& error) {
  auto script = std::make_unique<ResourceScript>();
  try {
    ResourceReader reader(bytes, 0);
    ReadSignature(reader);
    while (reader.Left() > 0) ReadEntry(reader, script->implementation_->directory);
  } catch (const ResourceError& damage) {
    error = damage;
    return nullptr;
  }
  return script;
}

std::optional<DialogTemplate> ResourceScript::Dialog(UINT id, ResourceError& error) const {
  return implementation_->Load(kDialogType, id, error, ReadDialogTemplate);
}

std::optional<std::vector<MenuItemTemplate>> ResourceScript::Menu(UINT id,
                                                                  ResourceError& error) const {
  return implementation_->Load(kMenuType, id, error, ReadMenuTemplate);
}

std::optional<std::wstring> ResourceScript::String(UINT id, ResourceError& error) const {
  const UINT block = id / kStringsPerBlock + 1;
  auto text = implementation_->Load(kStringType, block, error, [id](ResourceReader reader) {
    return ReadStringBlock(reader, id % kStringsPerBlock);
  });
  // A block keeps an empty text in the place of a string that does not exist.
  if (text && text->empty()) text.reset();
  return text;
}

std::span<const std::byte> ResourceScript::Data(const std::wstring& type, UINT id) const {
  const Entry* entry = implementation_->Find(KeyOf(type), id);
  return entry != nullptr ? entry->bytes : std::span<const std::byte>();
}

std::wstring ReadStringBlock(ResourceReader reader, UINT index) {
  for (UINT i = 0; i < index; ++i) {
    reader.Bytes(std::size_t{2} * reader.Word("the length of a string"), "a string");
  }
  return reader.Text(reader.Word("the length of a string"), "a string");
}
