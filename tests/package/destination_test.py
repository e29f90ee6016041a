#!/usr/bin/env python3
"""Tests an installation into a staging folder, as for packages.

    destination_test.py TREE SOURCES BUILD
"""
import os

from installedtree import BUILD, SOURCES, TREE, TreeTest, files_below, main, text_of

PREFIX = "/opt/vantorel"


class DestinationTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.destination = os.path.join(self.scratch, "destination")
        self.environment["DESTDIR"] = self.destination
        self.passes("cmake", "--install", BUILD, "--prefix", PREFIX)

    def test_all_files_are_below_the_destination_and_the_prefix(self):
        here = files_below(self.destination)
        self.assertEqual(here, [os.path.join(PREFIX, name)[1:] for name in files_below(TREE)])
        self.assertIn("opt/vantorel/bin/vantorel", here)

    def test_no_file_contains_the_path_of_the_destination_or_the_build(self):
        for name in files_below(self.destination):
            path = os.path.join(self.destination, name)
            if not name.endswith((".so", ".a", ".png", "/vantorel-portal")) and "/bin/" not in name and not os.path.islink(path):
                for folder in (self.destination, BUILD, SOURCES):
                    self.assertNotIn(folder, text_of(path), name)

    def test_the_service_file_has_the_prefix(self):
        service = text_of(f"{self.destination}{PREFIX}/share/dbus-1/services/org.vantorel.ColorPanel.service")
        self.assertIn(f"Exec={PREFIX}/bin/vantorel-panel --service\n", service)
        portal = "org.freedesktop.impl.portal.desktop.vantorel.service"
        service = text_of(f"{self.destination}{PREFIX}/share/dbus-1/services/{portal}")
        program = f"{PREFIX}/lib/vantorel/vantorel-portal"
        self.assertIn(f"Exec={program}\n", service)
        self.assertTrue(os.access(self.destination + program, os.X_OK))

    def test_no_link_leads_out_of_the_tree(self):
        links = [name for name in files_below(self.destination) if os.path.islink(os.path.join(self.destination, name))]
        for name in links:
            path = os.path.realpath(os.path.join(self.destination, name))
            self.assertTrue(path.startswith(os.path.realpath(self.destination) + "/") and os.path.exists(path), name)


if __name__ == "__main__":
    main()
