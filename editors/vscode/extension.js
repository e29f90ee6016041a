// Starts `vantorel lsp` and connects it with the editor.
const { workspace } = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");

let client;
exports.activate = () => {
    const command = workspace.getConfiguration("vantorel").get("command");
    const documents = [{ scheme: "file" }, { scheme: "untitled" }];
    client = new LanguageClient("vantorel", "Vantorel", { command, args: ["lsp"] }, { documentSelector: documents });
    return client.start();
};
exports.deactivate = () => client?.stop();
