#include "binding/ErrorCatalogue.h"

#include "ut/MessageCatalogue.h"

#include <mutex>

namespace VOR2 {

namespace {

// The id is the enumerator's own name, so the two cannot drift apart.
#define ENTRY(name, english, japanese) ErrorCatalogueEntry{name, #name, english, japanese}

constexpr std::array<ErrorCatalogueEntry, ERROR_COUNT> g_entries{{
    ENTRY(VOR2_SameParent,
          "Nodes must have the same parent.",
          "ノードは同じ親でなければなりません。"),
    ENTRY(VOR2_ChildNotFound,
          "Node is not a child of this parent.",
          "ノードはこの親の子ではありません。"),
    ENTRY(VOR2_ForcedError,
          "Artificial VOR error forced for testing purposes.",
          "Artificial VOR はテスト過程で強制的にエラーになりました。"),
    ENTRY(VOR2_NoRule,
          "No rule of type %s is registered.",
          "登録されているタイプ %1 の規則はありません。"),
    ENTRY(VOR2_InvalidEffectHandle,
          "Effect handle is invalid",
          "効果ハンドルが無効です"),
    ENTRY(VOR2_InvalidEffectID,
          "Effect ID is invalid",
          "効果 ID が無効です"),
    ENTRY(VOR2_EffectIDNotFound,
          "Cannot find effect ID",
          "効果 ID を見つけられません"),
    ENTRY(VOR2_EffectHandleNotFound,
          "Cannot find effect handle",
          "効果ハンドルを見つけられません"),
    ENTRY(VOR2_EffectReferencesInvalidNode,
          "Effects referencing an invalid Node",
          "効果が無効なノードを参照しています"),
    ENTRY(VOR2_UnrecognizedEvent,
          "Encountered unrecognized event",
          "認識されないイベントが見つかりました"),
    ENTRY(VOR2_InvalidScene,
          "Invalid scene",
          "無効なシーン"),
    ENTRY(VOR2_InvalidNode,
          "Invalid node",
          "無効なノード"),
    ENTRY(VOR2_NodeIsNotInScene,
          "Cannot remove node from a scene that does not contain it",
          "ノードが含まれていないシーンからノードを削除することはできません"),
    ENTRY(VOR2_ExpectedEnumValue,
          "Expected one of the following values: %s",
          "次の値のいずれかが必要です： %1"),
    ENTRY(VOR2_Expected2By2,
          "Expected either a [2 x n] or [n x 2] array",
          "[2 x n] または [n x 2] 配列のいずれかを期待していました"),
    ENTRY(VOR2_Expected3By3,
          "Transform requires a 3x3 matrix",
          "変換は 3x3 行列を必要とします"),
    ENTRY(VOR2_AbstractTool,
          "Tried to create an instance of an abstract tool",
          "抽象的なツールのインスタンスを作成しようとしました"),
    ENTRY(VOR2_UnknownScale,
          "Unknown scale function type",
          "不明なスケール関数タイプ"),
    ENTRY(VOR2_NotDelOrS,
          "key is not DEL or S",
          "キーが DEL または S ではありません"),
    ENTRY(VOR2_InvalidCurveIndex,
          "Passed an invalid index to a CurvedPathNode",
          "CurvedPathNode へ無効なインデックスを渡しました"),
    ENTRY(VOR2_NegativeLinearPathScale,
          "Tried to scale a LinearPathNode by a negative value",
          "負の値で LinearPathNode をスケールしようとしました"),
    ENTRY(VOR2_InvalidLinearPathIndex,
          "Passed an invalid index to a LinearPathNode",
          "LinearPathNode へ無効なインデックスを渡しました"),
    ENTRY(VOR2_CannotParentToSelf,
          "Cannot set parent to self",
          "親を自分に設定することはできません"),
    ENTRY(VOR2_CyclicalHierarchy,
          "Cannot set parent to an item's descendant",
          "親をアイテムの子孫に設定することはできません"),
    ENTRY(VOR2_ZeroLengthDirectionVector,
          "Cannot use a zero-vector as a direction vector",
          "零ベクトルを方向ベクトルとして使用することはできません"),
    ENTRY(VOR2_InvalidConversion,
          "Tried to convert from unknown type",
          "不明なタイプから変換しようとしました"),
    ENTRY(VOR2_InvalidAlignment,
          "Tried to use an invalid alignment",
          "無効な整列を使用しようとしました"),
    ENTRY(VOR2_InvalidLayerID,
          "Layer ID is invalid",
          "レイヤー ID が無効です"),
    ENTRY(VOR2_LayerIndexOutOfRange,
          "Layer index is out of range",
          "レイヤー インデックスは範囲外です"),
    ENTRY(VOR2_LayerIDNotFound,
          "Cannot find layer ID",
          "レイヤー ID を見つけられません"),
}};

#undef ENTRY

// Parallel arrays in the layout of a host message table.
struct TableColumns {
    int codes[ERROR_COUNT];
    char const *ids[ERROR_COUNT];
    char const *texts[ERROR_COUNT];
    ut_message_table table;

    explicit TableColumns(char const *ErrorCatalogueEntry::*text)
    {
        for (int i = 0; i < ERROR_COUNT; ++i) {
            codes[i] = g_entries[i].code;
            ids[i] = g_entries[i].id;
            texts[i] = g_entries[i].*text;
        }
        table = {ERROR_COUNT, ERROR_FACILITY, codes, ids, texts};
    }
};

} // namespace

std::array<ErrorCatalogueEntry, ERROR_COUNT> const &errorCatalogue()
{
    return g_entries;
}

ErrorCatalogueEntry const *findErrorCatalogueEntry(int code)
{
    int const index = (code & 0xffff) - 1;
    if ((code >> 16) != ERROR_FACILITY || index < 0 || index >= ERROR_COUNT) return nullptr;
    return &g_entries[index];
}

ut_message_table const &primaryErrorTable()
{
    static TableColumns const columns(&ErrorCatalogueEntry::english);
    return columns.table;
}

ut_message_table const &japaneseErrorTable()
{
    static TableColumns const columns(&ErrorCatalogueEntry::japanese);
    return columns.table;
}

void registerErrorCatalogue()
{
    static std::once_flag once;
    std::call_once(once, [] {
        ut_mem_add_primary_message_table(&primaryErrorTable());
        ut_mem_add_language("ja", &japaneseErrorTable());
    });
}

} // namespace VOR2
