#include "ui/auto_bet_line_builder.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardItemModel>

#include "engine/script.h"
#include "engine/verb_codes.h"
#include "script/comparison_codes.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"
#include "ui/auto_bet_choices.h"

using text_form::SubjectKind;
using text_form::VerbKind;

namespace {

constexpr int kTrue = -1;

void Fill(QComboBox* box, const ChoiceList& list) {
  box->blockSignals(true);
  box->clear();
  for (const ListEntry& e : list) {
    box->addItem(QString::fromStdString(e.Words), e.Code);
    if (e.Code == 0) {  // a separator reads as a break in the list, not a choice
      auto* model = qobject_cast<QStandardItemModel*>(box->model());
      if (model) model->item(box->count() - 1)->setEnabled(false);
    }
  }
  box->setCurrentIndex(-1);
  for (int i = 0; i < box->count(); ++i) {
    if (box->itemData(i).toInt() != 0) {
      box->setCurrentIndex(i);
      break;
    }
  }
  box->blockSignals(false);
}

ChoiceList ByIndex(const ChoiceList& list) {
  ChoiceList indexed;
  for (size_t i = 0; i < list.size(); ++i) indexed.push_back({static_cast<int>(i) + 1, list[i].Words});
  return indexed;
}

bool CountsOrAmount(int code) {
  return comparison::AgainstAmount(code) || comparison::OfCount(code) || (code >= 1 && code <= 10) ||
         (code >= 60 && code <= 63);
}

Currency AmountOf(const QLineEdit* field) {
  Currency value;
  if (!ParseExactAmount(field->text().trimmed().toStdString(), value)) return Currency();
  return value;
}

QString AmountText(Currency value) { return QString::fromStdString(ExactAmountText(value)); }

// Which list the second step offers, for the line's first choice.
ChoiceList SecondList(int kind, int first) {
  if (kind == line_kind::kCondition) {
    switch (text_form::SubjectKindOf(first)) {
      case SubjectKind::Point: return script_list::PointChoices();
      case SubjectKind::Decided: return script_list::DecidedChoices();
      case SubjectKind::Flag:
      case SubjectKind::AnyFlag:
      case SubjectKind::AllFlags: return builder::TruthChoices(first);
      case SubjectKind::Compared: return builder::ComparisonsFor(first);
      case SubjectKind::Bare: return {};
    }
  }
  if (kind == line_kind::kAction) {
    switch (text_form::VerbKindOf(first)) {
      case VerbKind::SetFlag: return {{kTrue, "to True"}, {1, "to False"}};
      case VerbKind::SetAllFlags: return {{kTrue, "to True"}, {1, "to False"}};
      case VerbKind::Switch: return {{kTrue, "on"}, {1, "off"}};
      case VerbKind::HandleWins: return ByIndex(script_list::AutoHandleWinning());
      case VerbKind::HandleLosses: return ByIndex(script_list::AutoHandleLosing());
      case VerbKind::ResetRolls: return script_list::DiceEventTargets();
      default: return {};
    }
  }
  return {};
}

}  // namespace

LineBuilder::LineBuilder(QWidget* parent) : QWidget(parent) {
  auto* form = new QFormLayout(this);
  auto combo = [this](const char* name) {
    auto* box = new QComboBox(this);
    box->setObjectName(QString::fromLatin1(name));
    box->setMaxVisibleItems(20);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(28);
    return box;
  };
  kind_ = combo("cboLineKind");
  first_ = combo("cboSubjectOrVerb");
  second_ = combo("cboChoice");
  source_ = combo("cboSource");
  target_ = combo("cboTarget");
  round_ = combo("cboRound");
  amount_ = new QLineEdit(this);
  amount_->setObjectName(QStringLiteral("txtAmount"));
  name_ = new QLineEdit(this);
  name_->setObjectName(QStringLiteral("txtName"));
  name_->setMaxLength(static_cast<int>(kLineNameWidth));
  subjectNum_ = new QSpinBox(this);
  targetNum_ = new QSpinBox(this);
  for (QSpinBox* n : {subjectNum_, targetNum_}) n->setRange(0, kChipStackNames - 1);
  preview_ = new QLabel(this);
  preview_->setObjectName(QStringLiteral("lblLinePreview"));
  preview_->setWordWrap(true);

  form->addRow(tr("Line"), kind_);
  form->addRow(tr("Subject / verb"), first_);
  form->addRow(tr("Chip-Stack #"), subjectNum_);
  form->addRow(tr("Amount"), amount_);
  form->addRow(tr("Of"), source_);
  form->addRow(tr("Choice"), second_);
  form->addRow(tr("To / against"), target_);
  form->addRow(tr("Chip-Stack #"), targetNum_);
  form->addRow(tr("Rounding"), round_);
  form->addRow(tr("Name"), name_);
  form->addRow(preview_);

  Fill(kind_, builder::LineKinds());
  Fill(source_, script_list::ActionSources());
  Fill(round_, script_list::RoundChoices());
  connect(kind_, &QComboBox::currentIndexChanged, this, &LineBuilder::KindChosen);
  connect(first_, &QComboBox::currentIndexChanged, this, &LineBuilder::FirstChosen);
  connect(second_, &QComboBox::currentIndexChanged, this, &LineBuilder::SecondChosen);
  for (QComboBox* box : {source_, target_, round_})
    connect(box, &QComboBox::currentIndexChanged, this, &LineBuilder::Preview);
  for (QLineEdit* field : {amount_, name_}) connect(field, &QLineEdit::textChanged, this, &LineBuilder::Preview);
  for (QSpinBox* n : {subjectNum_, targetNum_}) connect(n, &QSpinBox::valueChanged, this, &LineBuilder::Preview);
  KindChosen();
}

bool LineBuilder::Choose(QComboBox* list, int code) {
  if (code == 0) return false;
  const int at = list->findData(code);
  if (at < 0) return false;
  list->setCurrentIndex(at);
  return true;
}

int LineBuilder::CodeOf(const QComboBox* list) { return list->currentIndex() < 0 ? 0 : list->currentData().toInt(); }

void LineBuilder::KindChosen() {
  const int kind = CodeOf(kind_);
  if (kind == line_kind::kCondition) Fill(first_, builder::Subjects());
  else if (kind == line_kind::kAction) Fill(first_, script_list::ActionVerbs());
  else Fill(first_, {});
  FirstChosen();
}

void LineBuilder::FirstChosen() {
  const int kind = CodeOf(kind_), first = CodeOf(first_);
  Fill(second_, SecondList(kind, first));
  SecondChosen();
}

void LineBuilder::SecondChosen() {
  const int kind = CodeOf(kind_), first = CodeOf(first_), second = CodeOf(second_);
  if (kind == line_kind::kCondition && comparison::AgainstTarget(second)) Fill(target_, script_list::CompareTargets());
  else if (kind == line_kind::kAction) Fill(target_, script_list::ActionTargets());
  else Fill(target_, {});
  (void)first;
  ShowFields();
  Preview();
}

// Only the fields the chosen line takes are shown.
void LineBuilder::ShowFields() {
  const int kind = CodeOf(kind_), first = CodeOf(first_), second = CodeOf(second_);
  bool showFirst = false, showSecond = second_->count() > 0, showAmount = false, showSource = false;
  bool showTarget = false, showRound = false, showName = false;
  if (kind == line_kind::kLabel || kind == line_kind::kComment) showName = true;
  if (kind == line_kind::kCondition) {
    showFirst = true;
    const SubjectKind sk = text_form::SubjectKindOf(first);
    showName = sk == SubjectKind::Flag || (sk == SubjectKind::Compared && comparison::OfName(second));
    showAmount = sk == SubjectKind::Compared && CountsOrAmount(second);
    showTarget = sk == SubjectKind::Compared && comparison::AgainstTarget(second);
  }
  if (kind == line_kind::kAction) {
    showFirst = true;
    switch (text_form::VerbKindOf(first)) {
      case VerbKind::Operator: {
        const int form = first % 10;
        showAmount = form <= 2;
        showSource = form != 0;
        showTarget = true;
        break;
      }
      case VerbKind::Name: case VerbKind::SetFlag: case VerbKind::NameStack: showName = true; break;
      case VerbKind::Source: showSource = true; break;
      case VerbKind::Target: showTarget = true; break;
      case VerbKind::Round: showTarget = showRound = showAmount = true; break;
      case VerbKind::Amount: showAmount = true; break;
      case VerbKind::PercentOf: showAmount = showSource = true; break;
      default: break;
    }
  }
  const bool stackNumber = text_form::TakesNumber(first) && kind == line_kind::kCondition;
  const bool sourceNumber = showSource && text_form::TakesNumber(CodeOf(source_));
  const bool targetNumber = (showTarget && text_form::TakesNumber(CodeOf(target_))) ||
                            (kind == line_kind::kAction && text_form::VerbKindOf(first) == VerbKind::NameStack);
  auto* form = static_cast<QFormLayout*>(layout());
  auto show = [form](QWidget* w, bool on) { form->setRowVisible(w, on); };
  show(first_, showFirst);
  show(second_, showSecond);
  show(amount_, showAmount);
  show(source_, showSource);
  show(target_, showTarget);
  show(round_, showRound);
  show(name_, showName);
  show(subjectNum_, stackNumber || sourceNumber);
  show(targetNum_, targetNumber);
}

ScriptLine LineBuilder::Line() const {
  ScriptLine l;
  l.Kind = CodeOf(kind_);
  const int first = CodeOf(first_), second = CodeOf(second_);
  const std::string name = name_->text().toStdString();
  auto truth = [second] { return second == kTrue ? Currency(-1) : Currency(0); };
  if (l.Kind == line_kind::kLabel) l.Name = name;
  if (l.Kind == line_kind::kComment) l.Name = (!name.empty() && name[0] == '\'') ? name : "'" + name;
  if (l.Kind == line_kind::kCondition) {
    l.Subject = first;
    if (text_form::TakesNumber(first)) l.SubjectNum = subjectNum_->value();
    switch (text_form::SubjectKindOf(first)) {
      case SubjectKind::Bare: break;
      case SubjectKind::Point: case SubjectKind::Decided: l.Code = second; break;
      case SubjectKind::Flag: l.Name = name; l.LineAmount = truth(); break;
      case SubjectKind::AnyFlag: case SubjectKind::AllFlags: l.LineAmount = truth(); break;
      case SubjectKind::Compared:
        l.Code = second;
        if (comparison::AgainstTarget(second)) {
          l.Target = CodeOf(target_);
          if (text_form::TakesNumber(l.Target)) l.TargetNum = targetNum_->value();
        } else if (comparison::OfName(second)) {
          l.Name = name;
        } else {
          l.LineAmount = AmountOf(amount_);
        }
        break;
    }
  }
  if (l.Kind == line_kind::kAction) {
    l.Code = first;
    auto source = [&] {
      l.Subject = CodeOf(source_);
      if (text_form::TakesNumber(l.Subject)) l.SubjectNum = subjectNum_->value();
    };
    auto target = [&] {
      l.Target = CodeOf(target_);
      if (text_form::TakesNumber(l.Target)) l.TargetNum = targetNum_->value();
    };
    switch (text_form::VerbKindOf(first)) {
      case VerbKind::Operator:
        if (first % 10 <= 2) l.LineAmount = AmountOf(amount_);
        if (first % 10 != 0) source();
        target();
        break;
      case VerbKind::Name: l.Name = name; break;
      case VerbKind::SetFlag: l.Name = name; l.LineAmount = truth(); break;
      case VerbKind::SetAllFlags: case VerbKind::Switch: l.LineAmount = truth(); break;
      case VerbKind::NameStack: l.TargetNum = targetNum_->value(); l.Name = name; break;
      case VerbKind::Source: source(); break;
      case VerbKind::Target: target(); break;
      case VerbKind::ResetRolls: l.Target = second; break;
      case VerbKind::Round: target(); l.Subject = CodeOf(round_); l.LineAmount = AmountOf(amount_); break;
      case VerbKind::HandleWins: case VerbKind::HandleLosses: l.Target = second - 1; break;
      case VerbKind::Amount: l.LineAmount = AmountOf(amount_); break;
      case VerbKind::PercentOf: l.LineAmount = AmountOf(amount_); source(); break;
      case VerbKind::Bare: case VerbKind::Unknown: break;
    }
  }
  l.Text = l.Kind == line_kind::kComment ? l.Name : text_form::RenderedText(l);
  return l;
}

void LineBuilder::Load(const ScriptLine& l) {
  loading_ = true;
  const int kind = l.Kind == line_kind::kCondition || l.Kind == line_kind::kAction || l.Kind == line_kind::kLabel ||
                           l.Kind == line_kind::kComment || line_kind::IsStartCondition(l.Kind) ||
                           line_kind::IsStartAction(l.Kind)
                       ? l.Kind
                       : line_kind::kComment;
  Choose(kind_, kind);
  const bool truthLine = l.LineAmount == Currency(-1);
  if (kind == line_kind::kCondition) {
    Choose(first_, l.Subject);
    switch (text_form::SubjectKindOf(l.Subject)) {
      case SubjectKind::Flag: case SubjectKind::AnyFlag: case SubjectKind::AllFlags:
        Choose(second_, truthLine ? kTrue : 1);
        break;
      default: Choose(second_, l.Code); break;
    }
    subjectNum_->setValue(l.SubjectNum);
  } else if (kind == line_kind::kAction) {
    Choose(first_, l.Code);
    switch (text_form::VerbKindOf(l.Code)) {
      case VerbKind::SetFlag: case VerbKind::SetAllFlags: case VerbKind::Switch:
        Choose(second_, truthLine ? kTrue : 1);
        break;
      case VerbKind::ResetRolls: Choose(second_, l.Target); break;
      case VerbKind::HandleWins: case VerbKind::HandleLosses: Choose(second_, l.Target + 1); break;
      default: break;
    }
    Choose(source_, l.Subject);
    Choose(round_, l.Subject);
    subjectNum_->setValue(l.SubjectNum);
  }
  Choose(target_, l.Target);
  targetNum_->setValue(l.TargetNum);
  amount_->setText(AmountText(l.LineAmount));
  name_->setText(QString::fromStdString(l.Name));
  loading_ = false;
  ShowFields();
  Preview();
}

void LineBuilder::Preview() {
  ShowFields();
  preview_->setText(QString::fromStdString(Line().Text));
  if (!loading_) emit Changed();
}
