#pragma once
// The caller's side of a configuration group: a list of named configurations of whatever a dialog edits.
//
// ```cpp
//     class CPatternSet : public AConfigSet
//     {
//         CStringArray m_names;
//         int GetConfigNames(CStringArray& names) override
//         {
//             names.Copy(m_names);
//             return static_cast<int>(names.GetSize());
//         }
//         // and the other operations
//     };
// ```
//
// Entries count from 0. Index -1 is "Default", which is always there and is not in the list. What an entry
// stores is the set's own affair, and so is when it is written to a file. CConfigCtrlGroup tells when it
// calls what.

#include <afxwin.h>
#include <afxcoll.h>

class AConfigSet
{
public:
    virtual ~AConfigSet() {}

    /// For the caller's own use at the beginning and at the end: the group does not call them.
    virtual void LoadConfigs() {}
    /// As LoadConfigs, at the end.
    virtual void StoreConfigs() {}

    /// Fills `names` with the names of the entries, in their order, and answers how many there are.
    virtual int GetConfigNames(CStringArray& names) = 0;

    /// Adds an entry of this name at the end, with the present values. False if the name exists, and then
    /// nothing is added. Names come as the user typed them: of any length, with blanks around them, or empty.
    virtual bool AddConfig(const CString& name) = 0;

    /// Stores the present values in the entry of this name.
    virtual void OverwriteConfig(const CString& name) = 0;

    /// For the caller's own use: the group does not call it.
    virtual void RenameConfig(int /*nIndex*/, const CString& /*name*/) {}

    /// Removes an entry, and chooses which one is current next.
    virtual void DeleteConfig(int nIndex) = 0;

    /// Makes an entry current, -1 for "Default".
    virtual void SetCurrentConfig(int nIndex) = 0;

    /// Whether the present values are those of no entry, so that none is to be shown as current.
    virtual bool IsConfigChanged() = 0;

    /// The current entry, -1 for "Default".
    virtual int GetCurrentConfig() = 0;

    /// The name of an entry. `nIndex` may be -1: what is answered then is where the user begins to type.
    virtual CString GetConfigName(int nIndex) = 0;
};
