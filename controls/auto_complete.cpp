#include "controls/auto_complete.h"

#include "foundation/exception.h"

namespace {

constexpr DWORD kOptions = ACO_AUTOSUGGEST | ACO_AUTOAPPEND | ACO_UPDOWNKEYDROPSLIST;

}  // namespace

void EnableAutoComplete(HWND edit, std::shared_ptr<IAutoCompleteDropDown>* dropDown) {
  std::shared_ptr<IAutoComplete> completion;
  ThrowHr(CreateAutoComplete(&completion), L"Creating AutoComplete");
  std::shared_ptr<IACList> list;
  ThrowHr(CreateACListISF(&list), L"Creating ACList");
  std::shared_ptr<IACList2> list2;
  ThrowHr(QueryInterface(list, L"IACList2", &list2), L"Querying for ACList2 ifc");
  ThrowHr(list2->SetOptions(ACLO_FILESYSONLY), L"Setting ACList options");
  ThrowHr(completion->Init(edit, list, nullptr, nullptr), L"Initializing auto complete");
  std::shared_ptr<IAutoComplete2> completion2;
  ThrowHr(QueryInterface(completion, L"IAutoComplete2", &completion2),
          L"Querying for AutoComplete2 ifc");
  ThrowHr(completion2->SetOptions(kOptions), L"Setting AutoComplete options");
  if (dropDown == nullptr) return;
  ThrowHr(QueryInterface(completion, L"IAutoCompleteDropDown", dropDown),
          L"Querying for AutoCompleteDropDown ifc");
}
