#pragma once

// Numbers of the dialog templates, controls and images. The resource script, the code and the
// language files share them, so a number never changes and is never used for something else.

#ifdef RC_INVOKED
#define IDOK 1
#define IDCANCEL 2
#define IDC_STATIC -1
#endif

// Dialog templates.
#define IDD_MESSAGE_BOX 5515
#define IDD_EXPRESSION_GROUP 5519
#define IDD_DOS_PAGE 5520
#define IDD_CLEAR_HISTORY 5524
#define IDD_MAIN_CONFIGURATION 5526
#define IDD_GENERAL_GROUP 5533
#define IDD_EDITOR_GROUP 5534
#define IDD_ADVANCED_GROUP 5540
#define IDD_BOOLEAN_PAGE 5545
#define IDD_REGEX_PAGE 5548
#define IDD_HASH_PAGE 5549
#define IDD_SINGLE_PAGE 5551
#define IDD_SEARCH_PAGE 5553
#define IDD_MEMORY_PAGE 5556
#define IDD_EDIT_HISTORY 5562

// Images of the resource type PNG: the strips of the page tree in four sizes, and the picture of
// the message box.
#define IDR_TREE_IMAGES_16 5501
#define IDR_TREE_IMAGES_24 5502
#define IDR_TREE_IMAGES_32 5503
#define IDR_TREE_IMAGES_48 5504
#define IDR_MESSAGE_IMAGE 5555

// Main configuration dialog.
#define IDC_RESTORE_DEFAULTS 5000
#define IDC_PAGE_FRAME 5084
#define IDC_PAGE_TREE 5085
#define IDC_PAGE_CAPTION 5109

// Dialog around a single page.
#define IDC_SINGLE_PAGE_FRAME 5186

// Message box.
#define IDC_MESSAGE_TEXT 5041
#define IDC_MESSAGE_IMAGE 5158
#define IDC_COPY_TO_CLIPBOARD 5334
#define IDC_MESSAGE_BUTTON_1 35000
#define IDC_MESSAGE_BUTTON_2 35003
#define IDC_MESSAGE_BUTTON_3 35002

// Search page.
#define IDC_SHOW_HIT_COUNT 5096
#define IDC_SEARCH_TWO_PHASES 5105
#define IDC_SEARCH_ONE_PHASE 5106
#define IDC_SEARCH_MODE_HEADING 5208
#define IDC_SEARCH_AS_YOU_TYPE_HEADING 5263
#define IDC_SEARCH_AS_YOU_TYPE 5264
#define IDC_SEARCH_THEN_SORT 5282
#define IDC_DEFERRED_SORT_COLUMN 5300
#define IDC_DEFERRED_SORT_ASCENDING 5344
#define IDC_SEARCH_AS_YOU_TYPE_TEXT_TAB 5347

// Memory page.
#define IDC_REDUCE_CHARS 5088
#define IDC_MAX_SEARCH_MEMORY 5091
#define IDC_USE_MEMORY_MANAGER 5191
#define IDC_KEEP_CURRENT_SEARCH 5194
#define IDC_DEFAULT_MEMORY_LIMIT 5197
#define IDC_OWN_MEMORY_LIMIT 5201
#define IDC_MEMORY_LIMIT_LABEL 5220
#define IDC_MAX_SEARCH_MEMORY_UNIT 5221
#define IDC_REDUCE_LINES_LABEL 5222
#define IDC_REDUCE_CHARS_LABEL 5223
#define IDC_REDUCE_LINES 5224

// Page of Boolean expressions.
#define IDC_SIMILARITY_HEADING 5156
#define IDC_SIMILARITY 5157
#define IDC_PROXIMITY_HEADING 5159
#define IDC_MAX_NEAR_DISTANCE 5160
#define IDC_SIMILARITY_LOW 5161
#define IDC_SIMILARITY_MEDIUM 5162
#define IDC_SIMILARITY_HIGH 5163

// Page of DOS expressions.
#define IDC_DOS_STRICT 5100
#define IDC_DOS_HEADING 5169
#define IDC_DOS_IMPLY_BOUNDARY 5321

// Page of regular expressions.
#define IDC_REGEX_MAX_LINES 5018
#define IDC_REGEX_CLASSIC 5048
#define IDC_REGEX_STANDARD 5094
#define IDC_REGEX_ENGINE_HEADING 5164
#define IDC_REGEX_COLLATION 5218
#define IDC_REGEX_LIMIT_HEADING 5243

// Page of hash values; the boxes stand for the algorithms' bits in ascending order.
#define IDC_HASH_BIT_1 5055
#define IDC_HASH_BIT_2 5057
#define IDC_HASH_BIT_3 5058
#define IDC_HASH_BIT_0 5095
#define IDC_HASH_HEADING 5167

// Dialog that clears histories.
#define IDC_CLEAR_LOOK_IN 5001
#define IDC_CLEAR_CONTAINING 5002
#define IDC_CLEAR_ALL 5004
#define IDC_CLEAR_FILE_NAME 5005
#define IDC_CLEAR_HISTORY 35001

// Dialog that edits histories. Its edit box is made at run time, in the place of the frame.
#define IDC_HISTORY_LIST 5326
#define IDC_HISTORY_FRAME 5327
#define IDC_HISTORY_EDIT 5658
