"""The pages of the dialog and the notices as the real browser draws them, and their links by mouse and keyboard."""

import json

from at_the_screen import DECK, DIALOG, FORM, PAGE, SMALL_BOOK, AtTheScreen, unittest, wait_until

NOTICE, NOTICE_PAGE = "MurvaneNotice", "wbNotice"

# What a page cuts off: an element whose text needs more room than it is given, or a page longer than its window.
CUT_OFF = """(function(){
  var cut = Array.from(document.body.querySelectorAll('*')).filter(function(e){
    var s = getComputedStyle(e);
    return e.clientWidth && s.overflowX !== 'visible' && e.scrollWidth > e.clientWidth + 1;
  }).map(function(e){return e.className + ': ' + e.textContent.trim().slice(0, 40);});
  if (document.documentElement.scrollHeight > innerHeight + 1) cut.push('the page');
  return cut;
})()"""


class Pages(AtTheScreen):
    def looks(self, hand, form, page, wanted):
        for selector, style, value in wanted:
            with self.subTest(selector=selector, style=style):
                self.assertEqual(hand.do("ask", form, page, script="(function(){"
                    f"var e = document.querySelector({json.dumps(selector)});"
                    f"return e ? getComputedStyle(e)[{json.dumps(style)}] : 'no such element';}})()"), value)
        self.assertEqual(hand.do("ask", form, page, script=CUT_OFF), [])

    def text(self, hand, form, page):
        return hand.do("ask", form, page, script="document.body.innerText")

    def test_of_the_options_dialog(self):
        self.open_sample(DECK, SMALL_BOOK)
        hand = self.open_main_form()
        checked = sum(row["checked"] for row in hand.rows())
        self.open_dialog(hand)
        self.assertIn(str(checked), self.text(hand, DIALOG, PAGE).split())
        self.assertIn("Board deck.pptx", self.text(hand, DIALOG, PAGE))
        self.looks(hand, DIALOG, PAGE, [
            ("body", "backgroundColor", "rgb(17, 24, 39)"),
            (".panel.info", "backgroundColor", "rgb(21, 34, 56)"),
            (".panel.info", "borderTopColor", "rgb(37, 99, 235)"),
            (".app-badge.excel", "backgroundColor", "rgb(33, 115, 70)"),
            (".app-badge.ppt", "backgroundColor", "rgb(210, 71, 38)"),
            (".dest-name", "fontWeight", "700"),
        ])
        for key, option in (("slideTitle", "SlideTitle"), ("sourceInc", "SourceInc")):
            before = hand.value(DIALOG, option)
            hand.do("follow", DIALOG, PAGE, href=f"murvane://toggle/{key}")
            wait_until(lambda: hand.value(DIALOG, option) == 1 - before, what=f"the toggle of {key}")
            row = f"a[href='murvane://toggle/{key}']" + (".checked" if before == 0 else ":not(.checked)")
            hand.wait_for_page(DIALOG, PAGE, row)
        self.looks(hand, DIALOG, PAGE, [
            (".opt-row.checked", "backgroundColor", "rgb(21, 34, 56)"),
            (".opt-row.checked .opt-box", "backgroundColor", "rgb(37, 99, 235)"),
        ])
        for key, tool in (("style", "PredefinedStyles"), ("layout", "LayoutForm")):
            hand.do("follow", DIALOG, PAGE, href=f"murvane://action/{key}")
            hand.wait_for(tool)
            hand.do("key", tool, key="Alt+F4")
            wait_until(lambda: tool not in hand.do("forms"), what=f"the end of {tool}")
        hand.do("key", DIALOG, key="Escape")
        wait_until(lambda: DIALOG not in hand.do("forms"), what="the end of the dialog")
        self.assertIn(FORM, hand.do("forms"))

    def test_of_the_blocked_export(self):
        self.open_sample(DECK, SMALL_BOOK)
        hand = self.open_main_form()
        hand.do("click", FORM, "Check1")
        wait_until(lambda: not any(row["checked"] for row in hand.rows()))
        hand.do("click", FORM, "PasteIT")
        hand.wait_for(NOTICE)
        hand.wait_for_page(NOTICE, NOTICE_PAGE, "#noticeRoot")
        text = self.text(hand, NOTICE, NOTICE_PAGE)
        self.assertIn("Fix these before exporting:", text)
        self.assertIn("No items are checked. Select at least one chart, range, or object to export.", text)
        self.looks(hand, NOTICE, NOTICE_PAGE, [
            (".hero", "backgroundColor", "rgb(198, 40, 40)"),
            (".content", "backgroundColor", "rgb(17, 24, 39)"),
            (".content strong", "color", "rgb(248, 250, 252)"),
        ])
        hand.do("key", NOTICE, key="Escape")
        wait_until(lambda: NOTICE not in hand.do("forms"))
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(), 0, hand.said())


if __name__ == "__main__":
    unittest.main(verbosity=2)
