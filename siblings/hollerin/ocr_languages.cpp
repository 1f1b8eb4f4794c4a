#include "hollerin/ocr_languages.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "platform/text.h"

namespace HOLLERIN {
namespace {

struct Language {
  const wchar_t*
      code;  ///< ISO 639-2, with the script or the age behind it where there are several.
  const wchar_t* name;
};

constexpr Language kLanguages[] = {
    {L"afr", L"Afrikaans"},
    {L"amh", L"Amharic"},
    {L"ara", L"Arabic"},
    {L"asm", L"Assamese"},
    {L"aze", L"Azerbaijani"},
    {L"aze_cyrl", L"Azerbaijani (Cyrillic)"},
    {L"bel", L"Belarusian"},
    {L"ben", L"Bengali"},
    {L"bod", L"Tibetan"},
    {L"bos", L"Bosnian"},
    {L"bre", L"Breton"},
    {L"bul", L"Bulgarian"},
    {L"cat", L"Catalan"},
    {L"ceb", L"Cebuano"},
    {L"ces", L"Czech"},
    {L"chi_sim", L"Chinese (simplified)"},
    {L"chi_sim_vert", L"Chinese (simplified, vertical)"},
    {L"chi_tra", L"Chinese (traditional)"},
    {L"chi_tra_vert", L"Chinese (traditional, vertical)"},
    {L"chr", L"Cherokee"},
    {L"cos", L"Corsican"},
    {L"cym", L"Welsh"},
    {L"dan", L"Danish"},
    {L"dan_frak", L"Danish (Fraktur)"},
    {L"deu", L"German"},
    {L"deu_frak", L"German (Fraktur)"},
    {L"deu_latf", L"German (Fraktur Latin)"},
    {L"div", L"Divehi"},
    {L"dzo", L"Dzongkha"},
    {L"ell", L"Greek"},
    {L"eng", L"English"},
    {L"enm", L"English (Middle)"},
    {L"epo", L"Esperanto"},
    {L"est", L"Estonian"},
    {L"eus", L"Basque"},
    {L"fao", L"Faroese"},
    {L"fas", L"Persian"},
    {L"fil", L"Filipino"},
    {L"fin", L"Finnish"},
    {L"fra", L"French"},
    {L"frk", L"Frankish"},
    {L"frm", L"French (Middle)"},
    {L"fry", L"Western Frisian"},
    {L"gla", L"Scottish Gaelic"},
    {L"gle", L"Irish"},
    {L"glg", L"Galician"},
    {L"grc", L"Greek (ancient)"},
    {L"guj", L"Gujarati"},
    {L"hat", L"Haitian"},
    {L"heb", L"Hebrew"},
    {L"hin", L"Hindi"},
    {L"hrv", L"Croatian"},
    {L"hun", L"Hungarian"},
    {L"hye", L"Armenian"},
    {L"iku", L"Inuktitut"},
    {L"ind", L"Indonesian"},
    {L"isl", L"Icelandic"},
    {L"ita", L"Italian"},
    {L"ita_old", L"Italian (old)"},
    {L"jav", L"Javanese"},
    {L"jpn", L"Japanese"},
    {L"jpn_vert", L"Japanese (vertical)"},
    {L"kan", L"Kannada"},
    {L"kat", L"Georgian"},
    {L"kat_old", L"Georgian (old)"},
    {L"kaz", L"Kazakh"},
    {L"khm", L"Khmer"},
    {L"kir", L"Kyrgyz"},
    {L"kmr", L"Kurdish (Kurmanji)"},
    {L"kor", L"Korean"},
    {L"kor_vert", L"Korean (vertical)"},
    {L"lao", L"Lao"},
    {L"lat", L"Latin"},
    {L"lav", L"Latvian"},
    {L"lit", L"Lithuanian"},
    {L"ltz", L"Luxembourgish"},
    {L"mal", L"Malayalam"},
    {L"mar", L"Marathi"},
    {L"mkd", L"Macedonian"},
    {L"mlt", L"Maltese"},
    {L"mon", L"Mongolian"},
    {L"mri", L"Maori"},
    {L"msa", L"Malay"},
    {L"mya", L"Burmese"},
    {L"nep", L"Nepali"},
    {L"nld", L"Dutch"},
    {L"nor", L"Norwegian"},
    {L"oci", L"Occitan"},
    {L"ori", L"Odia"},
    {L"pan", L"Punjabi"},
    {L"pol", L"Polish"},
    {L"por", L"Portuguese"},
    {L"pus", L"Pashto"},
    {L"que", L"Quechua"},
    {L"ron", L"Romanian"},
    {L"rus", L"Russian"},
    {L"san", L"Sanskrit"},
    {L"sin", L"Sinhala"},
    {L"slk", L"Slovak"},
    {L"slk_frak", L"Slovak (Fraktur)"},
    {L"slv", L"Slovenian"},
    {L"snd", L"Sindhi"},
    {L"spa", L"Spanish"},
    {L"spa_old", L"Spanish (old)"},
    {L"sqi", L"Albanian"},
    {L"srp", L"Serbian"},
    {L"srp_latn", L"Serbian (Latin)"},
    {L"sun", L"Sundanese"},
    {L"swa", L"Swahili"},
    {L"swe", L"Swedish"},
    {L"syr", L"Syriac"},
    {L"tam", L"Tamil"},
    {L"tat", L"Tatar"},
    {L"tel", L"Telugu"},
    {L"tgk", L"Tajik"},
    {L"tha", L"Thai"},
    {L"tir", L"Tigrinya"},
    {L"ton", L"Tongan"},
    {L"tur", L"Turkish"},
    {L"uig", L"Uyghur"},
    {L"ukr", L"Ukrainian"},
    {L"urd", L"Urdu"},
    {L"uzb", L"Uzbek"},
    {L"uzb_cyrl", L"Uzbek (Cyrillic)"},
    {L"vie", L"Vietnamese"},
    {L"yid", L"Yiddish"},
    {L"yor", L"Yoruba"},
};

/// Learned data that are no language: page orientation and equations.
constexpr const wchar_t* kOtherData[] = {L"osd", L"equ"};

/// The first of them that exists holds the data.
std::vector<std::string> DataFolders() {
  if (const char* prefix = std::getenv("TESSDATA_PREFIX"); prefix != nullptr && *prefix != '\0') {
    const std::string folder = prefix;
    return {folder + "/tessdata", folder};
  }
  return {"/usr/share/tesseract-ocr/5/tessdata", "/usr/share/tesseract-ocr/4.00/tessdata",
          "/usr/share/tesseract-ocr/tessdata",   "/usr/share/tessdata",
          "/usr/share/tesseract/tessdata",       "/usr/local/share/tessdata"};
}

/// The codes of the languages with data; what cannot be looked at holds none.
std::vector<std::wstring> InstalledCodes() {
  namespace fs = std::filesystem;
  std::vector<std::wstring> codes;
  for (const std::string& folder : DataFolders()) {
    std::error_code error;
    fs::directory_iterator file(folder, error);
    if (error) continue;
    for (; !error && file != fs::directory_iterator(); file.increment(error)) {
      std::error_code ignored;
      if (file->path().extension() != ".traineddata" || !file->is_regular_file(ignored)) continue;
      codes.push_back(FromUtf8(file->path().stem().string()));
    }
    break;
  }
  return codes;
}

}  // namespace

std::vector<OcrLanguage> FindOcrLanguages() {
  if (auto dictated = GetMachine().OcrLanguages()) return std::move(*dictated);
  std::map<std::wstring, OcrLanguage> languages;
  for (const auto& [code, name] : kLanguages) languages[code] = {code, name, false};
  for (const std::wstring& code : InstalledCodes()) {
    languages.try_emplace(code, OcrLanguage{code, code}).first->second.available = true;
  }
  for (const wchar_t* other : kOtherData) languages.erase(other);
  std::vector<OcrLanguage> result;
  result.reserve(languages.size());
  for (auto& [code, language] : languages) result.push_back(std::move(language));
  return result;
}

}  // namespace HOLLERIN
