#pragma once

#include "platform/controls/busy.h"

#include <QApplication>
#include <QEvent>
#include <QProgressDialog>
#include <QPushButton>

#include <gtest/gtest.h>

namespace talor {

/// While it lives, the bar of a long work shows at its second step, and its "Annuler" is pressed at once. One that
/// never shows fails the test.
class AnnulerProgression : public QObject
{
public:
    AnnulerProgression()
        : m_patience(controls::Progress::setPatience(0))
    {
        qApp->installEventFilter(this);
    }
    ~AnnulerProgression() override
    {
        controls::Progress::setPatience(m_patience);
        EXPECT_TRUE(m_annulee) << "The bar never showed";
    }

private:
    bool eventFilter(QObject* objet, QEvent* evenement) override
    {
        auto* barre = qobject_cast<QProgressDialog*>(objet);
        if (barre && evenement->type() == QEvent::Show) {
            barre->findChild<QPushButton*>()->click();
            m_annulee = true;
        }
        return false;
    }

    int m_patience;
    bool m_annulee = false;
};

} // namespace talor
