#pragma once
// Things that outlive the pages that show them. A host colour button takes a control id for the life of the
// process, and so does each group that has one, while pages come and go: so pages borrow and return them.
//
//     struct CShelvedButton : AAcadColorBtnSTNotificationHandler  // passes on what it hears to the borrower
//     {
//         CAcadColorBtnST button{this};
//         AAcadColorBtnSTNotificationHandler* pBorrower = nullptr;
//         void PutBack();                                         // lets go of the page's variables
//         ...
//     };
//     CBorrowed<CShelvedButton> m_outline{this};                  // in the page

#include <memory>
#include <utility>
#include <vector>

/// A thing from the shelf, or a new one if the shelf is empty, for as long as the object lives.
template <class Thing>
class CBorrowed
{
public:
    template <class Borrower>
    explicit CBorrowed(Borrower* pBorrower) : m_pThing(Take())
    {
        m_pThing->pBorrower = pBorrower;
    }
    ~CBorrowed()
    {
        m_pThing->PutBack();
        Shelf().push_back(std::move(m_pThing));
    }
    CBorrowed(const CBorrowed&) = delete;
    CBorrowed& operator=(const CBorrowed&) = delete;

    Thing* operator->() const { return m_pThing.get(); }

private:
    using Things = std::vector<std::unique_ptr<Thing>>;

    /// Those that no page has at the moment.
    static Things& Shelf()
    {
        static Things s_shelf;
        return s_shelf;
    }
    static std::unique_ptr<Thing> Take()
    {
        if (Shelf().empty())
            return std::make_unique<Thing>();
        std::unique_ptr<Thing> pThing = std::move(Shelf().back());
        Shelf().pop_back();
        return pThing;
    }

    std::unique_ptr<Thing> m_pThing;
};
