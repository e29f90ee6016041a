#!/usr/bin/env node
// Compares the colours that `vantorel lsp` finds in style sheets with those of the CSS server of VS Code.
//
//     tools/compare-css-server.mjs PROGRAM FOLDER...
//
// PROGRAM is build/release/bin/vantorel. The CSS, SCSS and Less files below the folders are read. Needs the npm
// packages vscode-css-languageservice and vscode-languageserver-textdocument in the working folder; style sheets
// to read are in packages such as bootstrap, bulma and @fortawesome/fontawesome-free.
//
// Prints each colour that only the CSS server finds, each of another value, and how many there were. The exit
// status is 1 if there is one. Names in attribute selectors ([theme=red]) are left out: the CSS server takes them
// for colours, and they are none.
import { spawn } from "node:child_process";
import { readdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { extname, join } from "node:path";

const largestFile = 3_000_000; // characters
// Both round: one to 8 bits, the other not.
const tolerance = { red: 1.01 / 255, green: 1.01 / 255, blue: 1.01 / 255, alpha: 0.003 };

const [program, ...folders] = process.argv.slice(2);
if (folders.length === 0) {
    console.error("Usage: compare-css-server.mjs PROGRAM FOLDER...");
    process.exit(2);
}
const require = createRequire(join(process.cwd(), "packages.js"));
const css = require("vscode-css-languageservice");
const { TextDocument } = require("vscode-languageserver-textdocument");
const services = {
    ".css": ["css", css.getCSSLanguageService()],
    ".scss": ["scss", css.getSCSSLanguageService()],
    ".less": ["less", css.getLESSLanguageService()],
};

function* styleSheets(folder) {
    for (const entry of readdirSync(folder, { withFileTypes: true })) {
        const path = join(folder, entry.name);
        if (entry.isDirectory()) yield* styleSheets(path);
        else if (entry.isFile() && extname(path) in services) yield path;
    }
}

/** A client of a language server on standard input and output. */
class Client {
    constructor(command, options) {
        this.process = spawn(command, options, { stdio: ["pipe", "pipe", "inherit"] });
        this.process.stdout.on("data", (bytes) => this.read(bytes));
        this.answers = new Map();
        this.unread = Buffer.alloc(0);
        this.last = 0;
    }
    notify(method, params) {
        this.write({ method, params });
    }
    ask(method, params) {
        const id = ++this.last;
        this.write({ id, method, params });
        return new Promise((resolve) => this.answers.set(id, resolve));
    }
    end() {
        this.process.stdin.end();
    }
    write(message) {
        const bytes = Buffer.from(JSON.stringify({ jsonrpc: "2.0", ...message }));
        this.process.stdin.write(`Content-Length: ${bytes.length}\r\n\r\n`);
        this.process.stdin.write(bytes);
    }
    read(bytes) {
        this.unread = Buffer.concat([this.unread, bytes]);
        for (;;) {
            const end = this.unread.indexOf("\r\n\r\n");
            if (end < 0) return;
            const length = Number(/Content-Length: (\d+)/i.exec(this.unread.toString("latin1", 0, end))[1]);
            const whole = end + 4 + length;
            if (this.unread.length < whole) return;
            const message = JSON.parse(this.unread.toString("utf8", end + 4, whole));
            this.unread = this.unread.subarray(whole);
            this.answers.get(message.id)?.(message.result);
            this.answers.delete(message.id);
        }
    }
}

const place = (position) => `${position.line}:${position.character}`;

function isInAttributeSelector(text, start, end) {
    return /=\s*["']?$/.test(text.slice(Math.max(0, start - 10), start)) && /^["']?\s*[a-z]?\]/i.test(text.slice(end, end + 10));
}

const client = new Client(program, ["lsp"]);
await client.ask("initialize", { processId: process.pid, rootUri: null, capabilities: {} });
client.notify("initialized", {});

const counts = { files: 0, theirs: 0, ours: 0, missing: 0, different: 0 };
const read = new Set();
for (const file of folders.flatMap((folder) => [...styleSheets(folder)])) {
    const text = readFileSync(file, "utf8");
    if (text.length > largestFile || read.has(text)) continue;
    read.add(text);
    const [languageId, service] = services[extname(file)];
    const document = TextDocument.create(`file://${encodeURI(file)}`, languageId, 1, text);
    const theirs = service.findDocumentColors(document, service.parseStylesheet(document));

    const identifier = { uri: document.uri };
    client.notify("textDocument/didOpen", { textDocument: { ...identifier, languageId, version: 1, text } });
    const ours = await client.ask("textDocument/documentColor", { textDocument: identifier });
    client.notify("textDocument/didClose", { textDocument: identifier });

    const found = new Map(ours.map((color) => [place(color.range.start), color.color]));
    counts.files += 1;
    counts.ours += ours.length;
    for (const { range, color } of theirs) {
        const start = document.offsetAt(range.start);
        const end = document.offsetAt(range.end);
        if (isInAttributeSelector(text, start, end)) continue;
        counts.theirs += 1;
        const our = found.get(place(range.start));
        if (our === undefined) {
            counts.missing += 1;
            console.log(`missing: ${file}:${range.start.line + 1}: ${text.slice(start, end)}`);
        } else if (Object.keys(tolerance).some((part) => Math.abs(our[part] - color[part]) > tolerance[part])) {
            counts.different += 1;
            console.log(`different: ${file}:${range.start.line + 1}: ${text.slice(start, end)}`);
        }
    }
}
client.end();
console.log(`${counts.files} style sheets: ${counts.theirs} colours of the CSS server, ${counts.ours} of ours, ` +
    `${counts.missing} missing, ${counts.different} different`);
process.exitCode = counts.missing + counts.different > 0 ? 1 : 0;
