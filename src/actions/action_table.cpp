// The actions' run-time state.
#include "actions/action_table.h"

ActionRow ActionTable[NUM_ACTIONS + 1];

void FillActionTable() {
    for (const ActionDef& def : ActionDefs)
        ActionTable[def.id] = {def.id,         def.flags,        def.text,
                               def.mouse.mods, def.mouse.button, def.key.mods,
                               def.key.vk,     def.start,        ""};
    ActionTable[NUM_ACTIONS] = {NUM_ACTIONS, 0, "", UNBOUND, UNBOUND, UNBOUND, UNBOUND, 0, ""};
}
