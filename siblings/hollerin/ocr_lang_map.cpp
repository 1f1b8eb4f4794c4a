#include "hollerin/export.h"
#include "hollerin/hollerin.h"
#include "hollerin/ocr_languages.h"

namespace HOLLERIN {
namespace {

using INTERNAL_IFC::IOCRLanguage;

class COCRLanguage : public IOCRLanguage {
 public:
  explicit COCRLanguage(OcrLanguage language) : language_(std::move(language)) {}

  std::wstring GetCode() override { return language_.code; }
  std::wstring GetDisplayName() override { return language_.name; }
  bool IsAvailable() override { return language_.available; }

 private:
  OcrLanguage language_;
};

class COCRLangMap : public INTERNAL_IFC::IOCRLangMap {
 public:
  explicit COCRLangMap(const std::vector<OcrLanguage>& languages) {
    for (const OcrLanguage& language : languages) {
      languages_.push_back(std::make_shared<COCRLanguage>(language));
    }
  }

  HRESULT GetLanguages(std::vector<std::shared_ptr<IOCRLanguage>>& languages) override {
    languages.clear();
    if (GetMachine().Fails(L"GetLanguages")) return E_FAIL;
    languages = languages_;
    return S_OK;
  }

  HRESULT FindLanguage(std::shared_ptr<IOCRLanguage>& language, const std::wstring& code) override {
    language.reset();
    if (GetMachine().Fails(L"FindLanguage")) return E_FAIL;
    for (const auto& known : languages_) {
      if (known->GetCode() != code) continue;
      language = known;
      break;
    }
    return S_OK;
  }

 private:
  std::vector<std::shared_ptr<IOCRLanguage>> languages_;
};

}  // namespace

HRESULT LoadOCRLangMap(std::shared_ptr<INTERNAL_IFC::IOCRLangMap>* map) {
  return Export(L"LoadOCRLangMap", map,
                []() -> std::optional<std::shared_ptr<INTERNAL_IFC::IOCRLangMap>> {
                  return std::make_shared<COCRLangMap>(FindOcrLanguages());
                });
}

}  // namespace HOLLERIN
