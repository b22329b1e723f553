#pragma once
// The named connections of the user, for the library's group of configurations; and the one that was accepted
// last. Each is kept in a file of the folder. All of it stands here, as a client of the package would write it.

#include "Model.h"

#include <DialogControlsOW.h>

class CStoredConnections : public AConfigSet
{
public:
    /// `values` is what the dialog edits: it is stored from there, and a choice is put there.
    CStoredConnections(Connection& values, const CString& strFolder);

    /// The user is told of a file that cannot be read or written.
    void LoadConfigs() override;

    int GetConfigNames(CStringArray& names) override;
    bool AddConfig(const CString& name) override;
    void OverwriteConfig(const CString& name) override;
    void DeleteConfig(int nIndex) override;
    void SetCurrentConfig(int nIndex) override;
    bool IsConfigChanged() override;
    int GetCurrentConfig() override;
    CString GetConfigName(int nIndex) override;

    /// The connection that was accepted last; a new one if there is none.
    Connection LoadAccepted() const;
    /// Whether it could be stored. The user has been told if not.
    bool StoreAccepted(const Connection& connection) const;

    /// The entry that has these values becomes current, or none.
    void FindCurrent();

private:
    bool Exists(int nIndex) const;
    Connection ValuesOf(int nIndex) const;
    int Find(const CString& strName) const;
    bool Store(const std::vector<NamedConnection>& entries);

    Connection& m_values;
    std::filesystem::path m_named;
    std::filesystem::path m_accepted;
    std::vector<NamedConnection> m_entries;
    int m_nCurrent = -1;
};
