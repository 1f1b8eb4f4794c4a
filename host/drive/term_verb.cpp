#include "host/drive/term_verb.h"

#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/stores.h"
#include "ternwick/ternwick.h"

namespace {

using StyleHandle = std::shared_ptr<INTERNAL_IFC::ITermStyle>;

void Check(HRESULT status) {
  if (FAILED(status)) {
    throw RequestError(QStringLiteral("The search-term manager fails with status %1.").arg(status));
  }
}

/// The styles of one store, which it does not own.
class Terms {
 public:
  explicit Terms(HOLLERIN::Store& store)
      : store_(std::shared_ptr<void>(), &store), manager_(TERNWICK::CreateSearchTermMgr()) {
    Check(manager_ != nullptr ? S_OK : E_FAIL);
  }

  int Colour(int term) const { return static_cast<int>(Style(term)->GetColor()); }
  void SetColour(int term, int colour) {
    const StyleHandle style = Style(term);
    style->SetColor(static_cast<COLORREF>(colour));
    Check(manager_->SaveTermStyle(store_, term, style));
  }

 private:
  StyleHandle Style(int term) const {
    StyleHandle style;
    Check(manager_->GetTermStyle(store_, term, &style));
    return style;
  }

  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;
  std::shared_ptr<INTERNAL_IFC::ISearchTermMgr> manager_;
};

}  // namespace

QJsonArray TermColours(const Stores& stores, const Request& request) {
  Terms terms(stores.Get(kConfig));
  const QJsonArray wanted = request.arguments["set"].toArray();
  if (request.Has("set") && wanted.size() != TERNWICK::kTermCount) {
    throw RequestError(QStringLiteral("There are %1 search terms, not %2.")
                           .arg(TERNWICK::kTermCount)
                           .arg(wanted.size()));
  }
  for (int term = 0; term < wanted.size(); ++term) terms.SetColour(term, wanted[term].toInt());
  QJsonArray colours;
  for (int term = 0; term < TERNWICK::kTermCount; ++term) colours << terms.Colour(term);
  return colours;
}
