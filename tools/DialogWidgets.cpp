#include "DialogWidgets.h"

#include <algorithm>

#include "ScenarioScript.h"
#include "XWindowTree.h"

std::vector<DialogTable> const& DialogTables() {
    // The children of each dialog's form, in the order the dialog creates them. The lists of
    // the action request dialog are children of their viewports, not of the form.
    static std::vector<DialogTable> const tables = {
        {"the action request dialog",
         {"actiontitle", "actiondesc", "actionListLabel", "viewport", "takeAllActions",
          "takeActions", "cancelAction", "actionDetails", "snoozeLabel", "snoozeViewport",
          "snoozeButton"}},
        {"the action details dialog", {"actiondetails", "ok"}},
        {"the confirmation dialog",
         {"actiontitle", "staticlabel", "actionconfirmation", "cancel", "ok"}},
        {"a message dialog", {"actionmessage", "dismiss"}},
        {"the quiet mode dialog", {"staticlabel", "ok"}},
    };
    return tables;
}

namespace {

std::string Names(DialogTable const& table) {
    std::string names;
    for (char const* name : table.formChildren)
        names += (names.empty() ? "" : ", ") + std::string(name);
    return names;
}

// Returns the place of the widget among n form children, or -1 if no dialog of n children has
// it. Dialogs of the same size that share a name have it at the same place.
int PlaceOf(std::string const& widget, size_t n, std::string& known) {
    int place = -1;
    for (DialogTable const& table : DialogTables()) {
        if (table.formChildren.size() != n) continue;
        known += (known.empty() ? "" : "; ") + std::string(table.dialog) + ": " + Names(table);
        for (size_t i = 0; i < n; ++i)
            if (widget == table.formChildren[i]) place = static_cast<int>(i);
    }
    return place;
}

}  // namespace

Window FindWidgetWindow(Display* display, Window shell, std::string const& widget) {
    std::vector<Window> forms = ChildWindows(display, shell);
    if (forms.empty()) throw ScenarioError("the dialog's window has no form inside");
    // The shell holds the form alone; should anything else sit beside it, the form is the
    // child with the children of a known dialog.
    std::string known;
    for (Window form : forms) {
        // Xt realizes a composite's children last first, each new window going on top of its
        // siblings: bottom to top, the server lists the form's children in the reverse of the
        // order the dialog made them.
        std::vector<Window> children = ChildWindows(display, form);
        std::reverse(children.begin(), children.end());
        known.clear();
        int place = PlaceOf(widget, children.size(), known);
        if (place >= 0) return children[static_cast<size_t>(place)];
        if (forms.size() == 1) {
            if (known.empty())
                throw ScenarioError("the dialog's form has " + std::to_string(children.size()) +
                                    " children, as no known dialog has");
            throw ScenarioError("no widget \"" + widget + "\" in this dialog (" + known + ")");
        }
    }
    throw ScenarioError("no widget \"" + widget + "\" in this dialog: its window has " +
                        std::to_string(forms.size()) + " children, none a known form");
}

ViewportList FindViewportList(Display* display, Window viewport) {
    for (Window child : ChildWindows(display, viewport)) {
        std::vector<Window> inside = ChildWindows(display, child);
        if (!inside.empty()) return ViewportList{child, inside.front()};
    }
    throw ScenarioError("this widget holds no list: it is not a viewport");
}
