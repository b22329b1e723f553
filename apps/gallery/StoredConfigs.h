#pragma once
// The caller's side of a configuration group: bolt patterns by name, kept in a file from start to start.

#include <DialogControlsOW.h>

#include <vector>

/// What the dialog edits. Lengths in metres.
struct BoltPattern
{
    int nRows = 3;
    double dPitch = 0.07;
    double dEdge = 0.04;
    int nGrade = 1; ///< counted from 0 in the dialog's list

    friend bool operator==(const BoltPattern&, const BoltPattern&) = default;
};

class CStoredConfigs : public AConfigSet
{
public:
    /// `values` is the record that the dialog edits: it is stored from there, and a choice is put there.
    /// Every change is written to the file at once; entries that another window has put there stay. The user
    /// is told of a file that cannot be read or written.
    CStoredConfigs(BoltPattern& values, const CString& strPath);

    /// No file means no entries.
    void LoadConfigs() override;

    int GetConfigNames(CStringArray& names) override;
    bool AddConfig(const CString& name) override;
    void OverwriteConfig(const CString& name) override;
    void DeleteConfig(int nIndex) override;
    void SetCurrentConfig(int nIndex) override;
    bool IsConfigChanged() override;
    int GetCurrentConfig() override;
    CString GetConfigName(int nIndex) override;

private:
    struct Entry
    {
        CString strName;
        BoltPattern values;
    };
    using Entries = std::vector<Entry>;

    static Entries::iterator Find(Entries& entries, const CString& strName);
    static Entries Read(const CString& strPath);
    static void Write(const CString& strPath, const Entries& entries);
    template <class Change>
    void Apply(Change change);
    void Put(const CString& strName);
    bool Exists(int nIndex) const;
    BoltPattern ValuesOf(int nIndex) const;

    BoltPattern& m_values;
    CString m_strPath;
    Entries m_entries;
    int m_nCurrent = -1;
};
